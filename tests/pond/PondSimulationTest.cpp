#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "pond/PondSimulation.h"
#include "support/SampleRecords.h"

namespace orvik {
namespace {

using test::ConstantRain;
using test::IrregularRain;

// Days without a warm-up.
PondDays PlainDays(std::vector<double> runoff) {
  PondDays days;
  days.useShare.assign(runoff.size(), 1.0);
  for (const double depth : runoff) days.totalRunoff += depth;
  days.runoff = std::move(runoff);
  return days;
}

TEST(SimulatePond, FollowsAHandCalculationDayByDay) {
  // V = 1, R = 0.25. Storage after: 0.25, 0 (only 0.25 there), 0.75 (1 spilled), 0.5, 0.25.
  const PondBalance balance = SimulatePond(PlainDays({0.5, 0, 2, 0, 0}), {1, 0.25});
  EXPECT_DOUBLE_EQ(balance.runoff, 2.5);
  EXPECT_DOUBLE_EQ(balance.used, 1.25);
  EXPECT_DOUBLE_EQ(balance.spilled, 1.0);
  EXPECT_DOUBLE_EQ(balance.storageBefore, 0);
  EXPECT_DOUBLE_EQ(balance.storageAfter, 0.25);
  EXPECT_DOUBLE_EQ(balance.Efficiency(), 50);
}

TEST(SimulatePond, SpillsBeforeItUses) {
  // The first day leaves 0.75, so 0.75 of the second day spill; using first would spill only 0.5.
  const PondBalance balance = SimulatePond(PlainDays({1, 1}), {1, 0.25});
  EXPECT_DOUBLE_EQ(balance.spilled, 0.75);
  EXPECT_DOUBLE_EQ(balance.used, 0.5);
}

TEST(SimulatePond, DoesNotCountTheWarmUpButKeepsItsStorage) {
  PondDays days = PlainDays({3, 0, 0, 1});
  days.warmUpDays = 2;
  days.totalRunoff = 1;
  const PondBalance balance = SimulatePond(days, {2, 0.5});
  EXPECT_DOUBLE_EQ(balance.storageBefore, 1);  // 2 kept, 0.5 used on each of two days
  EXPECT_DOUBLE_EQ(balance.runoff, 1);
  EXPECT_DOUBLE_EQ(balance.used, 1);
  EXPECT_DOUBLE_EQ(balance.storageAfter, 1);
}

TEST(SimulatePond, BalancesTheWater) {
  const PondDays days = BuildPondDays(IrregularRain(), {});
  for (const double V : {0.05, 0.5, 2.0, 7.0}) {
    for (const double R : {0.0, 0.05, 0.15, 0.4}) {
      const PondBalance b = SimulatePond(days, {V, R});
      EXPECT_NEAR(b.storageBefore + b.runoff, b.used + b.spilled + b.storageAfter, 1e-9)
          << V << " " << R;
      EXPECT_NEAR(b.runoff, days.totalRunoff, 1e-9);
    }
  }
}

TEST(SimulatePond, UsesNothingWithoutARate) {
  EXPECT_EQ(SimulatePond(BuildPondDays(IrregularRain(), {}), {3, 0}).used, 0);
}

TEST(SimulatePond, UnderConstantRainUsesTheSmallerOfRateRainAndVolume) {
  const PondDays days = BuildPondDays(ConstantRain(0.2, 5), {});
  struct Case {
    double V, R, E;
  };
  const double unlimited = std::numeric_limits<double>::infinity();
  // Each day 0.2 inch arrives: a rate above uses all of it, a rate below its own share, and never
  // more than the storage holds.
  for (const auto& [V, R, E] : {Case{unlimited, 0.1, 50}, Case{unlimited, 0.05, 25},
                                Case{7, 0.3, 100}, Case{7, 0.1, 50}, Case{0.15, 0.3, 75}}) {
    EXPECT_NEAR(SimulatePond(days, {V, R}).Efficiency(), E, 1e-9) << V << " " << R;
  }
}

TEST(SimulatePond, AnUnlimitedStorageIsLimitedByTheRateAlone) {
  const PondDays days = BuildPondDays(IrregularRain(), {});
  const double R = 0.25 * days.MeanRunoff();
  const double unlimited = std::numeric_limits<double>::infinity();
  EXPECT_NEAR(SimulatePond(days, {unlimited, R}).Efficiency(), 25, 0.2);
}

TEST(SimulateEfficiencies, GrowWithVolumeAndRate) {
  const PondDays days = BuildPondDays(IrregularRain(), {});
  const double step = 1.2;
  for (double V = 0.1; V < 6; V *= step) {
    for (double R = 0.02; R < 0.4; R *= step) {
      const auto E = SimulateEfficiencies(days, {{V, R}, {V * step, R}, {V, R * step}});
      EXPECT_LE(E[0], E[1] + 0.01) << V << " " << R;
      EXPECT_LE(E[0], E[2] + 1e-9) << V << " " << R;
    }
  }
}

TEST(SimulateEfficiencies, EqualOnePondAtATimeBitForBit) {
  for (const PondOptions& options :
       {PondOptions{}, PondOptions{.holdOffDays = 2, .abstractionIn = 0.1}}) {
    const PondDays days = BuildPondDays(IrregularRain(), options);
    std::vector<PondCell> cells;  // neither a whole block nor a multiple of one
    cells.reserve(301);
    for (int i = 0; i < 301; ++i) cells.push_back({0.05 + 0.023 * i, 0.4 - 0.0013 * i});
    const auto E = SimulateEfficiencies(days, cells);
    ASSERT_EQ(E.size(), cells.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
      EXPECT_EQ(E[i], SimulatePond(days, cells[i]).Efficiency()) << i;
    }
  }
}

TEST(SimulateEfficiencies, OfNoPondsIsEmpty) {
  EXPECT_TRUE(SimulateEfficiencies(PlainDays({1}), {}).empty());
}

}  // namespace
}  // namespace orvik
