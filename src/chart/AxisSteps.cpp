#include "chart/AxisSteps.h"

#include "base/Rounding.h"

namespace orvik {
namespace {

constexpr int kLeastPixels = 2;          // between two values
constexpr double kRoundingShare = 1e-9;  // of the axis: less than that beyond its end is rounding

double InnerCount(double min, double max, double step) {
  return RoundHalfToEven((max - min) / step - 1);
}

}  // namespace

bool ReachesEnd(std::size_t count, double min, double max, double step) {
  return static_cast<double>(count) == InnerCount(min, max, step) + 2;
}

std::vector<double> AxisValues(double min, double max, double step, int pixels) {
  const double inner = InnerCount(min, max, step);
  const double most = static_cast<double>(pixels) / kLeastPixels;
  if (!(step > 0) || !(inner + 1 <= most)) return {};
  const double end = max + kRoundingShare * (max - min);
  std::vector<double> values{min};
  double value = min;
  for (double i = 1; i <= inner + 1; ++i) {
    value += step;
    if (value <= end) values.push_back(value);
  }
  return values;
}

}  // namespace orvik
