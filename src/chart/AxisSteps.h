// The values along an axis at which ticks, grid lines and numbers stand.
#pragma once

#include <cstddef>
#include <vector>

namespace orvik {

// From `min`, one `step` added after the other (a running sum, whose rounding adds up), over the
// n = RoundHalfToEven((max - min) / step - 1) inner values to the next one. A value beyond `max`
// has no place on the axis and is left out. Empty where the step is not positive, or so small that
// its values would stand less than two of the axis' `pixels` apart.
std::vector<double> AxisValues(double min, double max, double step, int pixels);

// Is the last of these values the one after the inner ones? It is not where that was left out.
bool ReachesEnd(std::size_t count, double min, double max, double step);

}  // namespace orvik
