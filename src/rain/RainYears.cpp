#include "rain/RainYears.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <string>

#include "base/FixedText.h"
#include "base/NumberText.h"
#include "rain/RainDate.h"

namespace orvik {
namespace {

// The wettest day ever measured: 71.9 inches (Foc-Foc, La Reunion, 1966-01-07 to 08).
constexpr double kWettestDayIn = 72;

// Depths above this do not occur twice to the hundredth of an inch at one place.
constexpr double kSuspectDayIn = 15;

std::chrono::sys_days NewYear(int year) {
  return std::chrono::sys_days(std::chrono::year(year) / std::chrono::January / 1);
}

std::size_t DaysOfYear(int year) {
  return static_cast<std::size_t>((NewYear(year + 1) - NewYear(year)).count());
}

void NoteWettest(const RainDay& day, RainYears& years) {
  if (years.WettestDays > 0 && day.DepthIn < years.WettestDayIn) return;
  if (years.WettestDays == 0 || day.DepthIn > years.WettestDayIn) {
    years.WettestDayIn = day.DepthIn;
    years.WettestDay = day.Date;
    years.WettestDays = 0;
  }
  ++years.WettestDays;
}

// Appends the year, or notes that it is left out. [begin, end) are its days with a value.
void AppendYear(int year, std::vector<RainDay>::const_iterator begin,
                std::vector<RainDay>::const_iterator end, RainYears& years) {
  const std::size_t days = DaysOfYear(year);
  const int missing = static_cast<int>(days) - static_cast<int>(end - begin);
  if (missing > kMostMissingDays) {
    years.LeftOutYears.push_back(year);
    return;
  }
  const std::size_t offset = years.Daily.size();
  years.Daily.resize(offset + days, 0.0);
  for (auto day = begin; day != end; ++day) {
    years.Daily[offset + static_cast<std::size_t>((day->Date - NewYear(year)).count())] =
        day->DepthIn;
    NoteWettest(*day, years);
  }
  if (years.Years.empty()) years.FirstYearDays = days;
  years.Years.push_back(year);
  years.MissingDays += missing;
}

bool IsPlausible(double meanAnnualIn) {
  return meanAnnualIn >= kLeastAnnualIn && meanAnnualIn <= kMostAnnualIn;
}

std::vector<MeanInUnit> PlausibleUnits(double meanAnnualIn, RainUnit unit) {
  std::vector<MeanInUnit> units;
  for (const RainUnit other : kRainUnits) {
    const double mean = meanAnnualIn * UnitsPerInch(unit) / UnitsPerInch(other);
    if (IsPlausible(mean)) units.push_back({other, mean});
  }
  return units;
}

void RefuseImplausible(const RainYears& years, RainUnit unit) {
  if (!IsPlausible(years.MeanAnnualIn)) {
    throw ImplausibleRain(
        "Read as \"" + std::string(RainUnitName(unit)) + "\", the mean annual rainfall is " +
            RoundedDepth(years.MeanAnnualIn) + " inches; " + ConvertToString(kLeastAnnualIn) +
            " to " + ConvertToString(kMostAnnualIn) + " inches are expected.",
        PlausibleUnits(years.MeanAnnualIn, unit));
  }
  if (years.WettestDayIn > kWettestDayIn) {
    throw Refusal("The wettest day of the record, " + IsoDate(years.WettestDay) + ", has " +
                  RoundedDepth(years.WettestDayIn) +
                  " inches, more than has ever been measured anywhere. If this is a code "
                  "for a missing value, leave the depth empty.");
  }
}

}  // namespace

std::string RoundedDepth(double inches) {
  const double unit = inches < 100 ? 10 : 1;
  return ConvertToString(std::round(inches * unit) / unit);
}

RainYears SelectRainYears(const RainRecord& record) {
  RainYears years;
  auto begin = record.Days.begin();
  for (int year = YearOf(record.First); year <= YearOf(record.Last); ++year) {
    const auto end = std::lower_bound(
        begin, record.Days.end(), NewYear(year + 1),
        [](const RainDay& day, std::chrono::sys_days date) { return day.Date < date; });
    AppendYear(year, begin, end, years);
    begin = end;
  }
  const auto count = static_cast<int>(years.Years.size());
  if (count < kFewestYears) {
    throw Refusal("The record has " + std::to_string(count) + " usable years; at least " +
                  std::to_string(kFewestYears) + " are needed. A calendar year with more than " +
                  std::to_string(kMostMissingDays) + " missing days is not usable.");
  }
  years.MeanAnnualIn = std::accumulate(years.Daily.begin(), years.Daily.end(), 0.0) / count;
  RefuseImplausible(years, record.Unit);
  return years;
}

std::string DescribeSuspectedCode(const RainYears& years) {
  if (years.WettestDays < 2 || years.WettestDayIn <= kSuspectDayIn) return {};
  return "The largest depth, " + FixedText(years.WettestDayIn, 2) + " inches, occurs on " +
         std::to_string(years.WettestDays) + " days, first on " + IsoDate(years.WettestDay) +
         ". Is it a code for a missing value? If so, leave these depths empty.";
}

}  // namespace orvik
