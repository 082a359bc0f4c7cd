// The measures of the chart that a curve set depends on, since its labels are placed for them.
#pragma once

namespace orvik {

inline constexpr double kFrameShape = 4.0 / 3.0;  // width to height of the chart's frame

// The height of axis numbers, axis titles and curve labels, in units of the vertical axis (R,
// inches per day on the EIA), whatever its range.
inline constexpr double kLabelHeight = 0.008;

}  // namespace orvik
