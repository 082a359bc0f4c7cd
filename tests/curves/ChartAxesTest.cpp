#include <gtest/gtest.h>

#include "curves/ChartAxes.h"

namespace orvik {
namespace {

TEST(RoundInterval, DividesTheRangeIntoRoundSteps) {
  struct Case {
    double range, interval;
  };
  for (const auto& [range, interval] : {Case{7, 1}, Case{0.4, 0.05}, Case{0.8, 0.1}, Case{10, 2},
                                        Case{0.6, 0.1}, Case{7.5, 0.5}, Case{3, 0.5}}) {
    EXPECT_EQ(RoundInterval(range), interval) << range;
  }
  EXPECT_EQ(RoundInterval(7.777), std::nullopt);
}

TEST(DividesRange, RequiresWholeSteps) {
  EXPECT_TRUE(DividesRange(0.4, 0.05));
  EXPECT_TRUE(DividesRange(7, 7));
  EXPECT_FALSE(DividesRange(7, 2));
  EXPECT_FALSE(DividesRange(7, 0));
  EXPECT_TRUE(DividesRange(7, 0.07));     // 100 steps
  EXPECT_FALSE(DividesRange(7, 0.0625));  // 112
  EXPECT_FALSE(DividesRange(7, 1e-300));
  EXPECT_FALSE(DividesRange(7, -1));
  EXPECT_FALSE(DividesRange(7, 20));
}

}  // namespace
}  // namespace orvik
