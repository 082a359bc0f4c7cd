#include <gmock/gmock.h>

#include "chart/AxisSteps.h"

namespace orvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(AxisValues, RunFromTheFirstOverTheInnerOnesToTheNext) {
  EXPECT_THAT(AxisValues(0, 7, 1, 700), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
  EXPECT_THAT(AxisValues(2, 3, 0.25, 700), ElementsAre(2, 2.25, 2.5, 2.75, 3));
}

// A tenth is not exact in binary: ten of them, added one by one, are a little less than 1.
TEST(AxisValues, AreARunningSum) {
  double sum = 0;
  for (int i = 0; i < 10; ++i) sum += 0.1;
  ASSERT_NE(sum, 1);
  const auto values = AxisValues(0, 1, 0.1, 400);
  ASSERT_EQ(values.size(), 11U);
  EXPECT_EQ(values.back(), sum);
}

// 0.1 + 0.1 + 0.1 is a little more than the 0.3 where the axis ends.
TEST(AxisValues, ALastValueThatRoundingPutsBeyondTheEndStays) {
  const double third = 0.1 + 0.1 + 0.1;
  ASSERT_GT(third, 0.3);
  const auto values = AxisValues(0, 0.3, 0.1, 400);
  ASSERT_EQ(values.size(), 4U);
  EXPECT_EQ(values.back(), third);
}

// 7 / 2 - 1 = 2.5 rounds to the even 2 inner values; the next one is 6.
TEST(AxisValues, TheNumberOfInnerValuesIsRoundedHalfToEven) {
  EXPECT_THAT(AxisValues(0, 7, 2, 700), ElementsAre(0, 2, 4, 6));
}

// 0.4 / 0.15 - 1 = 1.67 rounds to 2 inner values; the next one, 0.45, lies beyond the axis.
TEST(AxisValues, AValueBeyondTheEndIsLeftOut) {
  EXPECT_EQ(AxisValues(0, 0.4, 0.15, 400).size(), 3U);
  EXPECT_THAT(AxisValues(0, 7, 5, 700), ElementsAre(0, 5)) << "0.4 inner values, none";
  EXPECT_THAT(AxisValues(0, 7, 100, 700), ElementsAre(0));
}

TEST(AxisValues, OnlyTheOneAfterTheInnerOnesReachesTheEnd) {
  EXPECT_TRUE(ReachesEnd(AxisValues(0, 7, 1, 700).size(), 0, 7, 1)) << "6 inner values, then 7";
  EXPECT_FALSE(ReachesEnd(AxisValues(0, 0.4, 0.15, 400).size(), 0, 0.4, 0.15)) << "0.3 is inner";
}

TEST(AxisValues, ADamagedStepHasNone) {
  for (const double step : {0.0, -1.0, -1e-300, 1e-12, 1e-300, 0.019}) {
    EXPECT_THAT(AxisValues(0, 7, step, 700), IsEmpty()) << step;
  }
}

TEST(AxisValues, StandAtLeastTwoPixelsApart) {
  EXPECT_EQ(AxisValues(0, 7, 0.02, 700).size(), 351U);
  EXPECT_THAT(AxisValues(0, 7, 0.02, 699), IsEmpty());
  EXPECT_THAT(AxisValues(0, 7, 1, 0), IsEmpty());
}

}  // namespace
}  // namespace orvik
