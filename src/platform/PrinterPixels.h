// How fine a printer's pixels are.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orvik {

// Pixels to the inch for a device with `devicePerInch` and paper whose longer side has this many
// inches: the device's own, but at most 1200, since no eye can tell finer ones apart, and no more
// than let every position on the paper fit in 16 bits (27.3 inches at 1200). At least 1.
inline int PrinterPixelsPerInch(int devicePerInch, double longerSide) {
  constexpr double kFinest = 1200;
  const double mostPixels = std::numeric_limits<std::int16_t>::max();
  const double fitting = longerSide > 0 ? std::min(kFinest, mostPixels / longerSide) : kFinest;
  return std::clamp(devicePerInch, 1, std::max(1, static_cast<int>(fitting)));
}

}  // namespace orvik
