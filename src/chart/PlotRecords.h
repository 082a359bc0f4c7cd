// The chart's records of limits, rectangles and margins. Field order matters: rectangles are Left,
// Right, Top, Bottom.
#pragma once

#include <cstdint>

namespace orvik {

// The part of the chart's plane that the frame shows.
struct clsPlotWindow {
  double XMin = 0;  // V at the left edge, inches on the EIA
  double XMax = 0;  // V at the right edge
  double YMin = 0;  // R at the bottom edge, inches per day on the EIA
  double YMax = 0;  // R at the top edge
};

// Pixels of a drawing surface, y down; all four edges belong to the rectangle.
struct clsRectangle_Integer {
  std::int16_t Left = 0;
  std::int16_t Right = 0;
  std::int16_t Top = 0;
  std::int16_t Bottom = 0;
  bool operator==(const clsRectangle_Integer&) const = default;
};

}  // namespace orvik
