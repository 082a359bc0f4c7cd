// A point of the chart as a whole pixel of its frame.
#pragma once

#include <cstdint>

#include "engine/CurvePolygon.h"

namespace orvik {

struct FramePixel {
  std::int16_t x = 0;
  std::int16_t y = 0;  // down
  bool operator==(const FramePixel&) const = default;
};

// Pixels that the design point's mark reaches each way.
inline constexpr std::int16_t kMarkReach = 7;

// The pixel, if the mark around it lies within 16-bit pixels too. Throws OverflowError otherwise.
FramePixel WithRoomForMark(FramePixel pixel);

// The pixel of V (inches on the EIA) and R (inches per day on the EIA). Throws OverflowError where
// the design point's mark would leave the 16-bit pixels.
FramePixel PixelOfMark(double V, double R, const PlotToFrame& mapping);

}  // namespace orvik
