#include "support/SampleRecords.h"

#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

namespace orvik::test {

RainYears YearsOf(std::vector<double> daily, std::size_t firstYearDays) {
  RainYears years;
  years.Daily = std::move(daily);
  years.FirstYearDays = firstYearDays;
  const auto count = (years.Daily.size() + 200) / 365;
  for (std::size_t i = 0; i < count; ++i) years.Years.push_back(2001 + static_cast<int>(i));
  return years;
}

RainYears ConstantRain(double depthIn, int years) {
  return YearsOf(std::vector<double>(static_cast<std::size_t>(years) * 365, depthIn), 365);
}

RainYears IrregularRain() {
  std::uint64_t state = 12345;
  const auto random = [&] {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state >> 11U) / 9007199254740992.0;
  };
  std::vector<double> daily(std::size_t{6} * 365);
  for (double& depth : daily) {
    if (random() < 0.32) depth = -std::log(1 - random()) * (random() < 0.75 ? 0.24 : 1.2);
  }
  return YearsOf(daily, 365);
}

}  // namespace orvik::test
