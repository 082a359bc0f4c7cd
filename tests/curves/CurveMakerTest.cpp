#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "curves/CurveCheck.h"
#include "curves/CurveFileWriter.h"
#include "curves/CurveMaker.h"
#include "curves/Refusal.h"
#include "curves/SampleRecords.h"

namespace orvik {
namespace {

PondDays SampleDays(const PondOptions& options = {}) {
  const std::string path = std::string(ORVIK_DATA_DIR) + "samples/synthetic-rain.csv";
  return BuildPondDays(SelectRainYears(ReadRainRecord(path, RainUnit::Inches)), options);
}

TEST(MakeCurves, MakesTenCurvesWithinTheLimitsOfError) {
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "Sampleville");
  ASSERT_EQ(made.Set.Curves.size(), 10U);
  for (std::size_t i = 0; i < 10; ++i) {
    const EfficiencyCurve& curve = made.Set.Curves[i];
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
    EXPECT_NEAR(sum / count, made.Errors[i].Mean, 0.02) << curve.E;
  }
}

TEST(MakeCurves, NoCurveCouldBeginMuchSmaller) {
  // At the next smaller step the limit of the axis or of the error is reached by simulation: the
  // rate of the axis reaches E less 1 at VStart only just.
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "x");
  const EfficiencyCurve& last = made.Set.Curves.back();
  EXPECT_LT(SimulatePond(days, {last.VStart - 0.45, 0.4}).Efficiency(), 94);
}

TEST(MakeCurves, StartsDoNotFallFromCurveToCurve) {
  const MadeCurves made = MakeCurves(SampleDays(), {}, "x");
  for (std::size_t i = 1; i < made.Set.Curves.size(); ++i) {
    EXPECT_GE(made.Set.Curves[i].VStart, made.Set.Curves[i - 1].VStart);
  }
}

TEST(MakeCurves, TheSetPassesAllChecks) {
  const PondDays days = SampleDays();
  const MadeCurves made = MakeCurves(days, {}, "x");
  EXPECT_THAT(CheckCurves(made.Set, days.MeanRunoff()), testing::IsEmpty());
}

TEST(MakeCurves, GivesTheSameBytesEveryTime) {
  const PondDays days = SampleDays();
  EXPECT_EQ(CurveFileText(MakeCurves(days, {}, "x").Set),
            CurveFileText(MakeCurves(days, {}, "x").Set));
}

TEST(MakeCurves, WorksOnOtherAxesAndWithHoldOffAndAbstraction) {
  const ChartAxes wide{.VMax = 10, .VInterval = 2, .RMax = 0.8, .RInterval = 0.1};
  for (const PondOptions& options :
       {PondOptions{}, PondOptions{.HoldOffDays = 1}, PondOptions{.AbstractionIn = 0.1}}) {
    const PondDays days = SampleDays(options);
    const MadeCurves made = MakeCurves(days, wide, "x");
    EXPECT_EQ(made.Set.RMax, 0.8);
    for (std::size_t i = 0; i < made.Errors.size(); ++i) {
      EXPECT_LE(made.Errors[i].Max, kMostError);
      EXPECT_LE(made.Errors[i].Mean, kMostMeanError);
    }
  }
}

TEST(MakeCurves, RefusesAxesThatAreTooSmallAndSaysWhatHelps) {
  const ChartAxes low{.RMax = 0.1, .RInterval = 0.02};
  try {
    MakeCurves(SampleDays(), low, "x");
    FAIL();
  } catch (const Refusal& refusal) {
    EXPECT_THAT(refusal.what(), testing::HasSubstr("No curve for E = "));
    EXPECT_THAT(refusal.what(), testing::HasSubstr("Choose a larger --r-max."));
  }
}

TEST(MakeCurves, UnderConstantRainEveryCurveIsItsShareOfTheRain) {
  const MadeCurves made = MakeCurves(BuildPondDays(test::ConstantRain(0.2, 6), {}), {}, "x");
  for (const EfficiencyCurve& curve : made.Set.Curves) {
    const double share = 0.002 * static_cast<double>(curve.E);
    for (const double R : curve.R) EXPECT_NEAR(R, share, 0.002) << curve.E;
  }
}

}  // namespace
}  // namespace orvik
