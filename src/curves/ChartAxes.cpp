#include "curves/ChartAxes.h"

#include <cmath>

#include "base/NumberText.h"
#include "curves/FixedText.h"

namespace orvik {

bool DividesRange(double range, double interval) {
  if (!(interval > 0)) return false;
  const double steps = range / interval;
  return steps > 0.5 && std::fabs(steps - std::round(steps)) < 1e-6;
}

std::optional<double> RoundInterval(double range) {
  for (const double mostParts : {10.0, 20.0}) {
    for (int power = 3; power >= -4; --power) {
      for (const double first : {5.0, 2.0, 1.0}) {
        const double interval = ParseNumber(FixedText(first * std::pow(10.0, power), 4));
        const double parts = range / interval;
        if (parts < 4.5 || parts > mostParts + 0.5) continue;
        if (DividesRange(range, interval)) return interval;
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvik
