// The curves are R = A - 0.05 ln V with A = 0.15, 0.20, 0.25 for E = 50, 70, 90, from V = 1, 1.5, 2
// to 7: at any V, E = 50 + 400 (R + 0.05 ln V - 0.15).
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "base/RuntimeErrors.h"
#include "engine/Solver.h"

namespace orvik {
namespace {

using enum OutcomeKind;

EfficiencyCurve Curve(float E, double A, double VStart) {
  EfficiencyCurve curve;
  curve.E = E;
  curve.A = A;
  curve.B = -0.05;
  curve.VStart = VStart;
  curve.VEnd = 7;
  SampleCurve(curve);
  return curve;
}

CurveSet Set() {
  CurveSet set;
  set.VMax = 7;
  set.VInterval = 1;
  set.RMax = 0.4;
  set.RInterval = 0.1;
  set.curves = {Curve(50, 0.15, 1), Curve(70, 0.20, 1.5), Curve(90, 0.25, 2)};
  return set;
}

FramedCurves Framed(CurveSet set) {
  const PlotGeometry geometry = ReferenceGeometry(set);
  return {std::make_shared<const CurveSet>(std::move(set)), geometry};
}

class SolverTest : public testing::Test {
 protected:
  FramedCurves curves_ = Framed(Set());
  Solver solver_{&curves_};
};

TEST_F(SolverTest, FindsTheEfficiencyOfAPointBetweenTwoCurves) {
  const Answer answer = solver_.FindE(0.125, 3);
  ASSERT_TRUE(answer.outcome.IsSolved());
  // Found within 1E-5 in/day, which is 400 times as much in points of E.
  EXPECT_NEAR(answer.solution->E, 50 + 400 * (0.125 + 0.05 * std::log(3.0) - 0.15), 4e-3);
  EXPECT_NEAR(CurveR(3, answer.solution->curve), 0.125, 1e-5);
  EXPECT_TRUE(answer.solution->curve.V.empty()) << "not sampled";
}

TEST_F(SolverTest, FindsTheVolumeAtWhichACurveHasTheRate) {
  const Answer answer = solver_.FindV(70, 0.125);
  ASSERT_TRUE(answer.solution);
  EXPECT_NEAR(answer.solution->V, std::exp(1.5), 1e-3);  // 0.20 - 0.05 L = 0.125
  EXPECT_EQ(answer.solution->R, 0.125);
  EXPECT_EQ(answer.solution->E, 70);
}

TEST_F(SolverTest, FindsTheRateOfACurveAtAVolume) {
  const Answer answer = solver_.FindR(80, 3);  // halfway between A = 0.20 and A = 0.25
  ASSERT_TRUE(answer.solution);
  EXPECT_DOUBLE_EQ(answer.solution->R, 0.225 - 0.05 * std::log(3.0));
}

TEST_F(SolverTest, ARefusalNamesItsLimit) {
  EXPECT_EQ(solver_.FindE(0.1, -0.001).outcome, (Outcome{VolumeBelowAxis, 0}));
  EXPECT_EQ(solver_.FindE(0.1, 7.001).outcome, (Outcome{VolumeAboveAxis, 7}));
  EXPECT_EQ(solver_.FindE(-0.001, 3).outcome, (Outcome{RateBelowAxis, 0}));
  EXPECT_EQ(solver_.FindE(0.401, 3).outcome, (Outcome{RateAboveAxis, 0.4}));
  EXPECT_EQ(solver_.FindV(49.9, 0.1).outcome, (Outcome{EfficiencyBelowCurves, 50}));
  EXPECT_EQ(solver_.FindV(90.1, 0.1).outcome, (Outcome{EfficiencyAboveCurves, 90}));
  EXPECT_EQ(solver_.FindR(70, 1.4).outcome, (Outcome{VolumeBelowCurve, 1.5}));
}

TEST_F(SolverTest, ARateOffTheCurveIsRefusedByItsNearerEnd) {
  // The curve of 70 % falls from 0.20 - 0.05 ln 1.5 to 0.20 - 0.05 ln 7.
  const Outcome above = solver_.FindV(70, 0.3).outcome;
  EXPECT_EQ(above.kind, RateOffCurve);
  EXPECT_DOUBLE_EQ(above.limit, 0.20 - 0.05 * std::log(1.5));
  const Outcome below = solver_.FindV(70, 0.05).outcome;
  EXPECT_EQ(below.kind, RateOffCurve);
  EXPECT_DOUBLE_EQ(below.limit, 0.20 - 0.05 * std::log(7.0));
}

TEST_F(SolverTest, AValueOnALimitPasses) {
  EXPECT_TRUE(solver_.CheckRV(0, 0).IsSolved());
  EXPECT_TRUE(solver_.CheckRV(0.4, 7).IsSolved());
  EXPECT_TRUE(solver_.FindR(50, 7).outcome.IsSolved());
  EXPECT_TRUE(solver_.FindR(90, 7).outcome.IsSolved());
}

TEST_F(SolverTest, VolumesBeyondTheEndOfACurveThatEndsEarlyAreRefused) {
  CurveSet set = Set();
  set.curves[1].VEnd = 5;
  const FramedCurves curves = Framed(std::move(set));
  EXPECT_EQ(Solver(&curves).FindR(70, 5.5).outcome, (Outcome{VolumeAboveCurve, 5}));
}

TEST_F(SolverTest, APointOutsideTheCurvesIsBetweenNoTwo) {
  const Answer answer = solver_.FindE(0.39, 0.5);
  EXPECT_EQ(answer.outcome, (Outcome{PointOffCurves, 0}));
  EXPECT_FALSE(answer.solution);
}

TEST_F(SolverTest, OneCurveHasNoRegions) {
  CurveSet set = Set();
  set.curves.resize(1);
  const FramedCurves curves = Framed(std::move(set));
  EXPECT_EQ(Solver(&curves).FindE(0.1, 3).outcome.kind, PointOffCurves);
  EXPECT_TRUE(Solver(&curves).FindR(50, 3).outcome.IsSolved());
}

TEST(Solver, WithoutCurvesNothingIsSolved) {
  const Solver solver(nullptr);
  EXPECT_EQ(solver.FindE(0.1, 3).outcome.kind, PointOffCurves);
  EXPECT_EQ(solver.FindV(70, 0.1).outcome.kind, NoCurve);
  EXPECT_EQ(solver.FindR(70, 3).outcome.kind, NoCurve);
  EXPECT_FALSE(solver.Locate(3, 0.1, {}));
}

// Curves 2 and 3 leave the 16-bit pixels; whoever asks between curves 1 and 2 never meets them.
TEST(Solver, OnlyAQuestionThatNeedsTheUnusableCurvesIsAFault) {
  CurveSet set = Set();
  set.curves.push_back(Curve(95, 1e6, 2));
  const FramedCurves curves = Framed(std::move(set));
  EXPECT_TRUE(Solver(&curves).FindE(0.125, 3).outcome.IsSolved());
  EXPECT_THROW(Solver(&curves).FindE(0.39, 0.5), OverflowError);
}

TEST(Solver, CurvesThatMeetAreAFault) {
  CurveSet set = Set();
  set.curves[1].E = 50;  // two curves of the same E
  const FramedCurves curves = Framed(std::move(set));
  EXPECT_THROW(Solver(&curves).FindE(0.125, 3), DivisionByZeroError);
}

// The extents of a region only spare work: every pixel gets the answer of the crossing test alone.
TEST(FramedCurves, AnswersForEveryPixelAsThePolygonDoes) {
  const FramedCurves curves = Framed(Set());
  const auto& all = curves.Curves().curves;
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    const FramePolygon polygon =
        FindPolygonInPlotCoordinates(all[i], all[i + 1], curves.Geometry());
    int inside = 0;
    for (std::int16_t X = 100; X <= 860; X = static_cast<std::int16_t>(X + 3)) {
      for (std::int16_t Y = 0; Y <= 640; ++Y) {
        const bool isInside = IsPointInsidePolygon(X, Y, polygon);
        ASSERT_EQ(curves.IsBetweenCurves(i, {X, Y}), isInside) << i << ' ' << X << ' ' << Y;
        inside += isInside;
      }
    }
    EXPECT_GT(inside, 1000) << i;
  }
}

TEST(ReferenceGeometry, IsThatOfAChartOf960By640Pixels) {
  // By hand in FrameLayoutTest: the frame of this window in 960 x 640 pixels.
  EXPECT_EQ(ReferenceGeometry(Set()).Frame(), (clsRectangle_Integer{108, 852, 34, 592}));
}

TEST(PixelOfMark, IsRefusedWhereTheMarkLeavesTheSixteenBitPixels) {
  const PlotGeometry unit({0, 100, 0, 100}, {0, 100, 0, 100});  // a pixel is a unit
  EXPECT_EQ(PixelOfMark(32760, 50, unit), (FramePixel{32760, 50}));
  EXPECT_THROW(PixelOfMark(32761, 50, unit), OverflowError);  // 32761 + 7 = 32768
  EXPECT_THROW(PixelOfMark(-32762, 50, unit), OverflowError);
}

}  // namespace
}  // namespace orvik
