#include <gtest/gtest.h>

#include <cmath>

#include "curves/EfficiencyTable.h"
#include "pond/PondSimulation.h"
#include "support/SampleRecords.h"

namespace orvik {
namespace {

TEST(GeometricSteps, HaveOneRatio) {
  const auto steps = GeometricSteps(1, 16, 5);
  ASSERT_EQ(steps.size(), 5U);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_NEAR(steps[i], std::pow(2.0, i), 1e-12);
  EXPECT_EQ(steps.back(), 16);
}

TEST(EfficiencyTable, UnderConstantRainARateReachesItsShareOfTheRain) {
  const PondDays days = BuildPondDays(test::ConstantRain(0.2, 5), {});
  const EfficiencyTable table(days, {0.05, 1, 7}, GeometricSteps(0.01, 0.6, 60));
  for (const int E : {10, 50, 95}) {
    for (const std::size_t v : {1U, 2U}) {
      ASSERT_TRUE(table.RateAt(v, E)) << E;
      EXPECT_NEAR(*table.RateAt(v, E), 0.002 * E, 1e-9) << E;
    }
  }
  EXPECT_TRUE(table.RateAt(0, 24.9));  // 0.05 inch holds a quarter of a day's runoff
  EXPECT_FALSE(table.RateAt(0, 25.1));
}

TEST(EfficiencyTable, TheRateFoundReachesTheEfficiencyInASimulation) {
  const PondDays days = BuildPondDays(test::IrregularRain(), {});
  const EfficiencyTable table(days, {1, 3, 7}, GeometricSteps(0.03, 0.6, 60));
  for (std::size_t v = 0; v < 3; ++v) {
    for (const int E : {50, 65, 80}) {
      const auto R = table.RateAt(v, E);
      if (!R) continue;
      EXPECT_NEAR(SimulatePond(days, {table.V()[v], *R}).Efficiency(), E, 0.05) << v << " " << E;
    }
  }
}

}  // namespace
}  // namespace orvik
