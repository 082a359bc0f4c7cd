#include "curves/ChartAxes.h"

#include <cmath>

#include "base/FixedText.h"
#include "base/NumberText.h"

namespace orvik {
namespace {

constexpr double kWholeSlack = 1e-6;  // a number of intervals this close to a whole number is one
constexpr double kHalfPart = 0.5;

// Parts of an axis: few enough to leave room between the numbers; more only where no interval gives
// up to the usual number of parts.
constexpr double kFewestParts = 5;
constexpr double kUsualParts = 10;
constexpr double kMostParts = 20;

// Powers of ten of the intervals that are tried: from 5000 down to 0.0001.
constexpr int kMostPower = 3;
constexpr int kLeastPower = -4;

}  // namespace

bool DividesRange(double range, double interval) {
  if (!(interval > 0)) return false;
  const double steps = range / interval;
  return steps > kHalfPart && steps < kMostAxisSteps + kHalfPart &&
         std::fabs(steps - std::round(steps)) < kWholeSlack;
}

std::optional<double> RoundInterval(double range) {
  for (const double mostParts : {kUsualParts, kMostParts}) {
    for (int power = kMostPower; power >= kLeastPower; --power) {
      for (const double first : {5.0, 2.0, 1.0}) {
        const double interval = ParseNumber(FixedText(first * std::pow(10.0, power), -kLeastPower));
        const double parts = range / interval;
        if (parts < kFewestParts - kHalfPart || parts > mostParts + kHalfPart) continue;
        if (DividesRange(range, interval)) return interval;
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvik
