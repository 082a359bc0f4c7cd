#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Refusal.h"
#include "pond/PondSimulation.h"
#include "support/SampleRecords.h"

namespace orvik {
namespace {

using test::YearsOf;
using testing::ElementsAre;

TEST(PondDays, RunTheFirstYearTwiceAndCountItOnce) {
  const PondDays days = BuildPondDays(YearsOf({1, 0, 2, 3}, 2), {});
  EXPECT_THAT(days.runoff, ElementsAre(1, 0, 1, 0, 2, 3));
  EXPECT_EQ(days.warmUpDays, 2U);
  EXPECT_EQ(days.CountedDays(), 4U);
  EXPECT_DOUBLE_EQ(days.totalRunoff, 6);
  EXPECT_DOUBLE_EQ(days.MeanRunoff(), 1.5);
}

TEST(PondDays, KeepTheDateOfEachDay) {
  using std::chrono::sys_days;
  using std::chrono::year;
  const PondDays days = BuildPondDays(YearsOf({1, 0, 2, 3, 4}, 2), {});
  const sys_days first = year(2001) / 1 / 1;
  const sys_days second = year(2001) / 1 / 2;
  const sys_days nextYear = year(2002) / 1 / 1;
  EXPECT_THAT(days.dates,
              ElementsAre(first, second, first, second, nextYear, nextYear + std::chrono::days(1),
                          nextYear + std::chrono::days(2)));
}

TEST(PondDays, KnowTheCountedDaysOfEachYear) {
  // Runoff: 1, 0 (warm-up), 1, 0 (2001), 2, 3, 4 (2002).
  const PondDays days = BuildPondDays(YearsOf({1, 0, 2, 3, 4}, 2), {});
  ASSERT_EQ(days.years.size(), 2U);
  EXPECT_EQ(days.years[0].year, 2001);
  EXPECT_EQ(days.years[0].firstDay, 2U);
  EXPECT_EQ(days.years[0].days, 2U);
  EXPECT_EQ(days.years[1].year, 2002);
  EXPECT_EQ(days.years[1].firstDay, 4U);
  EXPECT_EQ(days.years[1].days, 3U);
}

TEST(PondDays, UseIsTheSameOnEveryDayWithoutAHoldOff) {
  EXPECT_THAT(BuildPondDays(YearsOf({1, 0, 2}, 1), {}).useShare, ElementsAre(1, 1, 1, 1));
}

TEST(PondDays, AbstractionIsLostFromEachDayWithRain) {
  const PondDays days = BuildPondDays(YearsOf({0.05, 0, 0.3, 1}, 1), {.abstractionIn = 0.1});
  EXPECT_THAT(days.runoff, ElementsAre(0, 0, 0, testing::DoubleEq(0.2), 0.9));
}

TEST(PondDays, HoldOffSpreadsTheRateOverTheDaysThatAreLeft) {
  // Warm-up: one day with rain. Counted: rain, held, held, use, rain, held, held, use, use.
  // The first counted day is held off by the warm-up's rain: 4 of 9 days have use.
  const PondDays days = BuildPondDays(YearsOf({1, 0, 0, 0, 1, 0, 0, 0, 0}, 1), {.holdOffDays = 2});
  const double share = 9.0 / 4.0;
  EXPECT_THAT(days.useShare, ElementsAre(share, 0, 0, 0, share, share, 0, 0, share, share));
}

TEST(PondDays, HoldOffKeepsTheAverageDemand) {
  const PondDays days = BuildPondDays(test::IrregularRain(), {.holdOffDays = 1});
  double sum = 0;
  for (std::size_t d = days.warmUpDays; d < days.useShare.size(); ++d) sum += days.useShare[d];
  EXPECT_NEAR(sum / static_cast<double>(days.CountedDays()), 1, 1e-12);
}

TEST(PondDays, HoldOffFollowsAHandCalculation) {
  // 2 inches fall on days 1 (warm-up) and 2; V = 5, R = 0.5, one day of hold-off.
  // Counted: day 2 (rain, held off by day 1), day 3 (held off by day 2), day 4, day 5 with use of
  // 0.5 x 4 / 2 = 1. Warm-up: 2 in, 1 used, 1 left.
  const PondDays days = BuildPondDays(YearsOf({2, 0, 0, 0}, 1), {.holdOffDays = 1});
  const PondBalance balance = SimulatePond(days, {5, 0.5});
  EXPECT_DOUBLE_EQ(balance.storageBefore, 1);
  EXPECT_DOUBLE_EQ(balance.used, 2);
  EXPECT_DOUBLE_EQ(balance.storageAfter, 1);
}

TEST(PondDays, RefuseWhatLeavesNothingToCalculate) {
  EXPECT_THROW(BuildPondDays(YearsOf({1, 1, 1}, 1), {.holdOffDays = 1}), Refusal);
  EXPECT_THROW(BuildPondDays(YearsOf({1, 1, 1}, 1), {.abstractionIn = 1}), Refusal);
}

}  // namespace
}  // namespace orvik
