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

std::size_t DaysOfYear(int year) {
  return static_cast<std::size_t>((NewYear(year + 1) - NewYear(year)).count());
}

void NoteWettest(const RainDay& day, RainYears& years) {
  if (years.wettestDays > 0 && day.depthIn < years.wettestDayIn) return;
  if (years.wettestDays == 0 || day.depthIn > years.wettestDayIn) {
    years.wettestDayIn = day.depthIn;
    years.wettestDay = day.date;
    years.wettestDays = 0;
  }
  ++years.wettestDays;
}

void AppendDates(const CalendarYear& year, std::vector<std::chrono::sys_days>& dates) {
  for (std::size_t day = 0; day < year.days; ++day) {
    dates.push_back(NewYear(year.year) + std::chrono::days(day));
  }
}

// Appends the year, or notes that it is left out. [begin, end) are its days with a value.
void AppendYear(int year, std::vector<RainDay>::const_iterator begin,
                std::vector<RainDay>::const_iterator end, RainYears& years) {
  const std::size_t days = DaysOfYear(year);
  const int missing = static_cast<int>(days) - static_cast<int>(end - begin);
  if (missing > kMostMissingDays) {
    years.leftOutYears.push_back(year);
    return;
  }
  const std::size_t firstDay = years.daily.size();
  years.kept.push_back({year, firstDay, days});
  AppendDates(years.kept.back(), years.dates);
  years.daily.resize(firstDay + days, 0.0);
  for (auto day = begin; day != end; ++day) {
    years.daily[firstDay + static_cast<std::size_t>((day->date - NewYear(year)).count())] =
        day->depthIn;
    NoteWettest(*day, years);
  }
  years.missingDays += missing;
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
  if (!IsPlausible(years.meanAnnualIn)) {
    throw ImplausibleRain(
        "Read as \"" + std::string(RainUnitName(unit)) + "\", the mean annual rainfall is " +
            RoundedDepth(years.meanAnnualIn) + " inches; " + ConvertToString(kLeastAnnualIn) +
            " to " + ConvertToString(kMostAnnualIn) + " inches are expected.",
        PlausibleUnits(years.meanAnnualIn, unit));
  }
  if (years.wettestDayIn > kWettestDayIn) {
    throw Refusal("The wettest day of the record, " + IsoDate(years.wettestDay) + ", has " +
                  RoundedDepth(years.wettestDayIn) +
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
  auto begin = record.days.begin();
  for (int year = YearOf(record.first); year <= YearOf(record.last); ++year) {
    const auto end = std::lower_bound(
        begin, record.days.end(), NewYear(year + 1),
        [](const RainDay& day, std::chrono::sys_days date) { return day.date < date; });
    AppendYear(year, begin, end, years);
    begin = end;
  }
  const auto count = static_cast<int>(years.kept.size());
  if (count < kFewestYears) {
    throw Refusal("The record has " + std::to_string(count) + " usable years; at least " +
                  std::to_string(kFewestYears) + " are needed. A calendar year with more than " +
                  std::to_string(kMostMissingDays) + " missing days is not usable.");
  }
  years.meanAnnualIn = std::accumulate(years.daily.begin(), years.daily.end(), 0.0) / count;
  RefuseImplausible(years, record.unit);
  return years;
}

std::string DescribeSuspectedCode(const RainYears& years) {
  if (years.wettestDays < 2 || years.wettestDayIn <= kSuspectDayIn) return {};
  return "The largest depth, " + FixedText(years.wettestDayIn, 2) + " inches, occurs on " +
         std::to_string(years.wettestDays) + " days, first on " + IsoDate(years.wettestDay) +
         ". Is it a code for a missing value? If so, leave these depths empty.";
}

}  // namespace orvik
