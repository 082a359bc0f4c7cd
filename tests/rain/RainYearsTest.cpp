#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#include "base/Refusal.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

using std::chrono::days;
using std::chrono::January;
using std::chrono::sys_days;
using std::chrono::year;
using testing::ElementsAre;
using testing::HasSubstr;

// A record with `depth` on every day from the first day of `from` to the last of `to`.
RainRecord FullYears(int from, int to, double depth) {
  RainRecord record;
  record.first = sys_days(year(from) / January / 1);
  record.last = sys_days(year(to + 1) / January / 1) - days(1);
  for (sys_days day = record.first; day <= record.last; day += days(1)) {
    record.days.push_back({day, depth});
  }
  return record;
}

void Remove(RainRecord& record, sys_days first, int count) {
  std::erase_if(record.days, [&](const RainDay& day) {
    return day.date >= first && day.date < first + days(count);
  });
}

std::string RefusalOf(const RainRecord& record) {
  try {
    SelectRainYears(record);
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
  return "not refused";
}

std::vector<int> KeptOf(const RainYears& years) {
  std::vector<int> kept;
  for (const CalendarYear& year : years.kept) kept.push_back(year.year);
  return kept;
}

TEST(RainYears, KeepAYearThatMissesTenDaysAndCountThemDry) {
  RainRecord record = FullYears(2001, 2006, 0.1);
  Remove(record, sys_days(year(2003) / 3 / 1), 10);
  const RainYears years = SelectRainYears(record);
  EXPECT_THAT(KeptOf(years), ElementsAre(2001, 2002, 2003, 2004, 2005, 2006));
  EXPECT_EQ(years.missingDays, 10);
  EXPECT_EQ(years.daily.size(), 365U * 6 + 1);  // 2004 has a leap day
  EXPECT_EQ(std::count(years.daily.begin(), years.daily.end(), 0.0), 10);
  EXPECT_EQ(years.daily[365 * 2 + 31 + 28], 0);  // March 1, 2003
  EXPECT_EQ(years.daily[365 * 2 + 31 + 27], 0.1);
}

TEST(RainYears, LeaveOutAYearThatMissesElevenDays) {
  RainRecord record = FullYears(2001, 2006, 0.1);
  Remove(record, sys_days(year(2001) / 3 / 1), 11);
  const RainYears years = SelectRainYears(record);
  EXPECT_THAT(KeptOf(years), ElementsAre(2002, 2003, 2004, 2005, 2006));
  EXPECT_THAT(years.leftOutYears, ElementsAre(2001));
  EXPECT_EQ(years.daily.size(), 365U * 5 + 1);
}

TEST(RainYears, KnowWhichDaysAreThoseOfEachKeptYear) {
  RainRecord record = FullYears(2001, 2007, 0.1);
  Remove(record, sys_days(year(2003) / 3 / 1), 11);  // 2003 is left out
  const RainYears years = SelectRainYears(record);
  EXPECT_THAT(KeptOf(years), ElementsAre(2001, 2002, 2004, 2005, 2006, 2007));
  EXPECT_EQ(years.kept[2].firstDay, 365U * 2);
  EXPECT_EQ(years.kept[2].days, 366U);  // a leap year
  EXPECT_EQ(years.kept[3].firstDay, 365U * 2 + 366);
  EXPECT_EQ(years.kept[3].days, 365U);
  EXPECT_EQ(years.kept.back().firstDay + years.kept.back().days, years.daily.size());
}

TEST(RainYears, KnowTheDateOfEachDayAcrossAYearThatIsLeftOut) {
  RainRecord record = FullYears(2001, 2007, 0.1);
  Remove(record, sys_days(year(2003) / 3 / 1), 11);  // 2003 is left out
  const RainYears years = SelectRainYears(record);
  ASSERT_EQ(years.dates.size(), years.daily.size());
  EXPECT_EQ(years.dates.front(), sys_days(year(2001) / 1 / 1));
  EXPECT_EQ(years.dates[365 * 2 - 1], sys_days(year(2002) / 12 / 31));
  EXPECT_EQ(years.dates[365 * 2], sys_days(year(2004) / 1 / 1));
  EXPECT_EQ(years.dates[365 * 2 + 31 + 28], sys_days(year(2004) / 2 / 29));
  EXPECT_EQ(years.dates.back(), sys_days(year(2007) / 12 / 31));
}

TEST(RainYears, MissingDaysOfAKeptYearHaveTheirDates) {
  RainRecord record = FullYears(2001, 2005, 0.1);
  Remove(record, sys_days(year(2001) / 1 / 1), 3);
  const RainYears years = SelectRainYears(record);
  EXPECT_EQ(years.daily.front(), 0);
  EXPECT_EQ(years.dates.front(), sys_days(year(2001) / 1 / 1));
}

TEST(RainYears, MeanIsThatOfTheKeptYears) {
  RainRecord record = FullYears(2001, 2005, 0.1);  // 2004 has a leap day
  EXPECT_NEAR(SelectRainYears(record).meanAnnualIn, 36.52, 1e-9);
}

TEST(RainYears, FewerThanFiveAreRefused) {
  EXPECT_EQ(RefusalOf(FullYears(2001, 2005, 0.1)), "not refused");
  EXPECT_THAT(RefusalOf(FullYears(2001, 2004, 0.1)), HasSubstr("4 usable years; at least 5"));
}

// The units that the refusal of an implausible record names, each with its mean as shown.
std::vector<std::string> UnitsFor(const RainRecord& record) {
  std::vector<std::string> units;
  try {
    SelectRainYears(record);
  } catch (const ImplausibleRain& refusal) {
    for (const auto& [unit, annualIn] : refusal.Units()) {
      units.push_back(std::string(RainUnitName(unit)) + " " + RoundedDepth(annualIn));
    }
  }
  return units;
}

TEST(RainYears, AnImplausibleDepthIsRefusedWithTheUnitsThatMakeSense) {
  RainRecord record = FullYears(2001, 2005, 30);  // 30 tenths of a millimetre, read as inches
  EXPECT_EQ(RefusalOf(record),
            "Read as \"in\", the mean annual rainfall is 10956 inches; 5 to 200 inches are "
            "expected.");
  EXPECT_THAT(UnitsFor(record), ElementsAre("hundredths-in 110", "tenths-mm 43.1"));

  RainRecord inches = FullYears(2001, 2005, 0.15 / 254);  // inches, read as tenths of a millimetre
  inches.unit = RainUnit::TenthsOfMillimetre;
  EXPECT_THAT(UnitsFor(inches), ElementsAre("in 54.8"));
  EXPECT_THAT(UnitsFor(FullYears(2001, 2005, 1e6)), testing::IsEmpty());
}

TEST(RainYears, LimitsOfTheMeanDepthAreAllowed) {
  for (const double annual : {5.01, 199.9}) {
    EXPECT_EQ(RefusalOf(FullYears(2001, 2005, annual / 365.2)), "not refused") << annual;
  }
  for (const double annual : {4.99, 200.1}) {
    EXPECT_THAT(RefusalOf(FullYears(2001, 2005, annual / 365.2)), HasSubstr("5 to 200")) << annual;
  }
}

TEST(RainYears, ACodeForAMissingValueIsNotRain) {
  RainRecord record = FullYears(2001, 2005, 0.1);
  record.days[100].depthIn = 99.99;
  EXPECT_THAT(RefusalOf(record), HasSubstr("has 100 inches, more than has ever been measured"));
}

TEST(RainYears, KnowTheirWettestDay) {
  RainRecord record = FullYears(2001, 2005, 0.1);
  record.days[31 + 4].depthIn = 7.5;
  record.days[31 + 9].depthIn = 7.25;
  const RainYears years = SelectRainYears(record);
  EXPECT_EQ(years.wettestDayIn, 7.5);
  EXPECT_EQ(years.wettestDay, sys_days(year(2001) / 2 / 5));
  EXPECT_EQ(years.wettestDays, 1);
}

TEST(RainYears, TheSameLargestDepthAboveFifteenInchesTwiceIsSuspect) {
  struct Case {
    double first;
    double second;
    bool isSuspect;
  };
  // 999.9 mm and 9999 tenths of a millimetre are 39.37 inches.
  for (const auto& [first, second, isSuspect] :
       {Case{999.9 / 25.4, 999.9 / 25.4, true}, Case{15.01, 15.01, true}, Case{15, 15, false},
        Case{22.75, 22.5, false}, Case{22.75, 0.1, false}}) {
    RainRecord record = FullYears(2001, 2005, 0.1);
    record.days[59].depthIn = first;
    record.days[500].depthIn = second;
    const std::string text = DescribeSuspectedCode(SelectRainYears(record));
    EXPECT_EQ(!text.empty(), isSuspect) << first << " " << second << ": " << text;
  }
  RainRecord record = FullYears(2001, 2005, 0.1);
  for (const std::size_t day : {59U, 400U, 500U}) record.days[day].depthIn = 999.9 / 25.4;
  EXPECT_EQ(DescribeSuspectedCode(SelectRainYears(record)),
            "The largest depth, 39.37 inches, occurs on 3 days, first on 2001-03-01. Is it a code "
            "for a missing value? If so, leave these depths empty.");
}

}  // namespace
}  // namespace orvik
