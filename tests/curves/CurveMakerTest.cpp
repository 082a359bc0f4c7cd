#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "curves/ChartAxes.h"
#include "curves/CurveCheck.h"
#include "curves/CurveFit.h"
#include "curves/CurveMaker.h"
#include "curves/EfficiencyTable.h"
#include "engine/CurveFileWriter.h"
#include "pond/PondSimulation.h"
#include "support/SampleRecords.h"

namespace orvik {
namespace {

PondDays SampleDays(const PondOptions& options = {}) {
  const std::string path = std::string(ORVIK_DATA_DIR) + "samples/synthetic-rain.csv";
  return BuildPondDays(SelectRainYears(ReadRainRecord(path, RainUnit::Inches)), options);
}

TEST(MakeCurves, MakesTenCurvesWithinTheLimitsOfError) {
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "Sampleville");
  ASSERT_EQ(made.set.curves.size(), 10U);
  for (std::size_t i = 0; i < 10; ++i) {
    const EfficiencyCurve& curve = made.set.curves[i];
    EXPECT_EQ(curve.E, static_cast<float>(50 + 5 * i));
    EXPECT_EQ(curve.VEnd, 7);
    // Independently of the judging in the maker: one pond at a time, at other volumes.
    double sum = 0;
    int count = 0;
    for (double V = curve.VStart; V <= curve.VEnd; V += 0.037) {
      const double E = SimulatePond(days, {V, CurveR(V, curve)}).Efficiency();
      EXPECT_NEAR(E, static_cast<double>(curve.E), 1.0) << V;
      sum += std::fabs(E - static_cast<double>(curve.E));
      ++count;
    }
    EXPECT_LE(sum / count, 0.6) << curve.E;
    EXPECT_NEAR(sum / count, made.errors[i].mean, 0.02) << curve.E;
  }
}

// The rate that reaches E at a volume, found by halving; not from the maker's table.
double RateFor(const PondDays& days, double V, double E) {
  double low = 0;
  double high = 2;
  for (int i = 0; i < 40; ++i) {
    const double middle = (low + high) / 2;
    (SimulatePond(days, {V, middle}).Efficiency() < E ? low : high) = middle;
  }
  return high;
}

// Whether a curve of this efficiency within one point of the simulation can begin at VStart and
// still keep its distance from the one below.
bool CanBeginAt(const PondDays& days, double VStart, double E, const EfficiencyCurve* lower) {
  std::vector<RateBand> bands;
  for (const double V : GeometricSteps(VStart, 7, 32)) {
    bands.push_back({V, RateFor(days, V, E - 1), RateFor(days, V, E), RateFor(days, V, E + 1)});
  }
  const double asymptote = days.MeanRunoff() / 100;
  return FitCurve(bands, {.mostError = 1,
                          .VStart = VStart,
                          .VEnd = 7,
                          .mostR = 0.4,
                          .leastR = asymptote * E * 1.001,
                          .lower = lower,
                          .gap = 2.5 * asymptote})
      .has_value();
}

TEST(MakeCurves, NoCurveCouldBeginMuchSmaller) {
  // Two steps of 0.05 inch: the maker accepts a little less than one point of error, as its table
  // and its fit do not see every volume.
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "x");
  const EfficiencyCurve* lower = nullptr;
  for (const EfficiencyCurve& curve : made.set.curves) {
    const auto E = static_cast<double>(curve.E);
    EXPECT_FALSE(CanBeginAt(days, curve.VStart - 0.1, E, lower)) << E;
    EXPECT_TRUE(CanBeginAt(days, curve.VStart + 0.1, E, lower)) << E;
    lower = &curve;
  }
}

TEST(MakeCurves, StartsDoNotFallFromCurveToCurve) {
  const MadeCurves made = MakeCurves(SampleDays(), {}, "x");
  for (std::size_t i = 1; i < made.set.curves.size(); ++i) {
    EXPECT_GE(made.set.curves[i].VStart, made.set.curves[i - 1].VStart);
  }
}

TEST(MakeCurves, TheSetPassesAllChecks) {
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "x");
  EXPECT_THAT(CheckCurves(made.set, days.MeanRunoff()), testing::IsEmpty());
}

TEST(MakeCurves, GivesTheSameBytesEveryTime) {
  const PondDays days = SampleDays();
  EXPECT_EQ(CurveFileText(MakeCurves(days, {}, "x").set),
            CurveFileText(MakeCurves(days, {}, "x").set));
}

TEST(MakeCurves, WorksOnOtherAxesAndWithHoldOffAndAbstraction) {
  const ChartAxes wide{.VMax = 10, .VInterval = 2, .RMax = 0.8, .RInterval = 0.1};
  for (const PondOptions& options :
       {PondOptions{}, PondOptions{.holdOffDays = 1}, PondOptions{.abstractionIn = 0.1}}) {
    const PondDays days = SampleDays(options);
    const MadeCurves made = MakeCurves(days, wide, "x");
    EXPECT_EQ(made.set.RMax, 0.8);
    for (const CurveError& error : made.errors) {
      EXPECT_LE(error.max, kMostError);
      EXPECT_LE(error.mean, kMostMeanError);
    }
  }
}

struct Refused {
  std::string sentence;
  std::optional<AxisRemedy> remedy;
};

Refused RefusalOf(const PondDays& days, const ChartAxes& axes) {
  try {
    MakeCurves(days, axes, "x");
  } catch (const AxesTooSmall& refusal) {
    return {refusal.what(), refusal.Remedy()};
  }
  return {"not refused", {}};
}

TEST(MakeCurves, RefusesAxesThatAreTooSmallAndSaysWhatWouldHelp) {
  const ChartAxes low{.RMax = 0.1, .RInterval = 0.02};
  const auto [sentence, remedy] = RefusalOf(SampleDays(), low);
  EXPECT_THAT(sentence, testing::HasSubstr("No curve for E = "));
  EXPECT_EQ(remedy, AxisRemedy::LargerRMax);
}

TEST(MakeCurves, ARefusalDoesNotContradictTheAxis) {
  // Under constant rain of 1 inch a day every volume needs 0.5 inch for half of it.
  const Refused one = RefusalOf(BuildPondDays(test::ConstantRain(1, 6), {}), {});
  EXPECT_EQ(one.sentence,
            "No curve for E = 50% fits within V = 7 in and R = 0.4 in/day: at the largest volume "
            "it needs R = 0.500 in/day.");
  EXPECT_EQ(one.remedy, AxisRemedy::LargerRMax);
  const Refused two = RefusalOf(BuildPondDays(test::ConstantRain(2, 6), {}), {});
  EXPECT_EQ(two.sentence,
            "No curve for E = 50% fits within V = 7 in and R = 0.4 in/day: at the largest volume "
            "even R = 0.600 in/day is too little.");
  EXPECT_EQ(two.remedy, AxisRemedy::LargerRMaxOrVMax);
  // The axis ends just above what the largest volume needs.
  const PondDays days = SampleDays();
  const double needed = RateFor(days, 7, 95);
  ASSERT_GT(needed, 0.2);
  ASSERT_LT(needed, 0.202);
  const Refused narrow = RefusalOf(days, {.RMax = 0.202, .RInterval = 0.101});
  EXPECT_EQ(narrow.sentence,
            "No curve for E = 95% fits within V = 7 in and R = 0.202 in/day: at the largest volume "
            "it needs R = 0.201 in/day, which leaves too little of the V axis.");
  EXPECT_EQ(narrow.remedy, AxisRemedy::LargerRMaxOrVMax);
}

TEST(MakeCurves, UnderConstantRainEveryCurveIsItsShareOfTheRain) {
  const MadeCurves made = MakeCurves(BuildPondDays(test::ConstantRain(0.2, 6), {}), {}, "x");
  for (const EfficiencyCurve& curve : made.set.curves) {
    const double share = 0.002 * static_cast<double>(curve.E);
    for (const double R : curve.R) EXPECT_NEAR(R, share, 0.002) << curve.E;
  }
}

}  // namespace
}  // namespace orvik
