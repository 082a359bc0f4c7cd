#include "support/SampleRecords.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

namespace orvik::test {

RainYears YearsOf(std::vector<double> daily, std::size_t firstYearDays) {
  RainYears years;
  years.daily = std::move(daily);
  for (std::size_t day = 0; day < years.daily.size(); day += years.kept.back().days) {
    const std::size_t length = years.kept.empty() ? firstYearDays : 365;
    const int year = 2001 + static_cast<int>(years.kept.size());
    years.kept.push_back({year, day, std::min(length, years.daily.size() - day)});
    for (std::size_t i = 0; i < years.kept.back().days; ++i) {
      years.dates.push_back(NewYear(year) + std::chrono::days(i));
    }
  }
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
