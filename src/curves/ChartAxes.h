// The axes of a design chart: their limits, and the interval of their numbers.
#pragma once

#include <optional>

namespace orvik {

struct ChartAxes {
  double VMin = 0;  // inches on the EIA
  double VMax = 7;
  double VInterval = 1;
  double RMin = 0;  // inches per day on the EIA
  double RMax = 0.4;
  double RInterval = 0.05;
};

// An axis has no more steps than this: more numbers have no room beside a chart of any size.
inline constexpr int kMostAxisSteps = 100;

// True when numbers at this interval end exactly at the end of the range, in at most
// kMostAxisSteps steps.
bool DividesRange(double range, double interval);

// A round interval (1, 2 or 5 times a power of ten) that divides the range into 5 to 20 parts;
// nothing where there is none.
std::optional<double> RoundInterval(double range);

}  // namespace orvik
