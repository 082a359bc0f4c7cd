#include <gtest/gtest.h>

#include <cmath>

#include "base/RuntimeErrors.h"
#include "engine/CurveQueries.h"

namespace orvik {
namespace {

// R = A - 0.05 ln V.
EfficiencyCurve Logarithmic(float E, double A, double VStart, double VEnd = 7) {
  EfficiencyCurve curve;
  curve.E = E;
  curve.A = A;
  curve.B = -0.05;
  curve.VStart = VStart;
  curve.VEnd = VEnd;
  SampleCurve(curve);
  return curve;
}

CurveSet ThreeCurves() {
  CurveSet set;
  set.curves = {Logarithmic(50, 0.15, 1), Logarithmic(70, 0.20, 1.5), Logarithmic(90, 0.25, 2)};
  return set;
}

TEST(ExtractCurve, TakesAStoredCurveUnchanged) {
  const CurveSet set = ThreeCurves();
  const auto curve = ExtractCurve(set, 70);
  ASSERT_TRUE(curve);
  EXPECT_EQ(curve->E, 70.0F);
  EXPECT_EQ(curve->A, set.curves[1].A);
  EXPECT_EQ(curve->VStart, set.curves[1].VStart);
  EXPECT_EQ(curve->VEnd, set.curves[1].VEnd);
}

TEST(ExtractCurve, ComparesInSinglePrecision) {
  const auto curve = ExtractCurve(ThreeCurves(), 70.0000001);  // the same single as 70
  ASSERT_TRUE(curve);
  EXPECT_EQ(curve->A, 0.20);
}

TEST(ExtractCurve, InterpolatesEveryParameterInE) {
  auto curve = ExtractCurve(ThreeCurves(), 55);  // a quarter of the way from 50 to 70
  ASSERT_TRUE(curve);
  SampleCurve(*curve);
  EXPECT_EQ(curve->E, 55.0F);
  EXPECT_DOUBLE_EQ(curve->A, 0.1625);
  EXPECT_DOUBLE_EQ(curve->B, -0.05);
  EXPECT_DOUBLE_EQ(curve->VStart, 1.125);
  EXPECT_DOUBLE_EQ(curve->VEnd, 7);
  EXPECT_EQ(curve->NumPoints, 100);
  EXPECT_EQ(curve->V.front(), 1.125);
}

// Every parameter is another one on the second curve.
CurveSet TwoDifferentCurves() {
  EfficiencyCurve A = Logarithmic(50, 0.125, 1, 6);
  A.C = 0.25;
  A.D = -0.5;
  EfficiencyCurve B = Logarithmic(70, 0.375, 2, 8);
  B.B = -0.25;
  B.C = 0.75;
  B.D = -1;
  CurveSet set;
  set.curves = {A, B};
  return set;
}

TEST(ExtractCurve, InterpolatesParametersThatAllDiffer) {
  const auto curve = ExtractCurve(TwoDifferentCurves(), 55);  // a quarter of the way
  ASSERT_TRUE(curve);
  EXPECT_DOUBLE_EQ(curve->A, 0.1875);
  EXPECT_DOUBLE_EQ(curve->B, -0.1);
  EXPECT_DOUBLE_EQ(curve->C, 0.375);
  EXPECT_DOUBLE_EQ(curve->D, -0.625);
  EXPECT_DOUBLE_EQ(curve->VStart, 1.25);
  EXPECT_DOUBLE_EQ(curve->VEnd, 6.5);
}

TEST(ExtractCurve, TakesTheShareFromEInDoublePrecision) {
  // As a single, 63.3 is 63.2999992: the share of the way would be another one.
  const double E = 63.3;
  const auto curve = ExtractCurve(TwoDifferentCurves(), E);
  ASSERT_TRUE(curve);
  EXPECT_DOUBLE_EQ(curve->A, 0.125 + 0.25 * (E - 50) / 20);
  EXPECT_DOUBLE_EQ(curve->VEnd, 6 + 2 * (E - 50) / 20);
}

TEST(ExtractCurve, FindsACurveUpToItsNeighbours) {
  for (const double E : {50.001, 69.999, 70.001, 89.999}) {
    const auto curve = ExtractCurve(ThreeCurves(), E);
    ASSERT_TRUE(curve) << E;
    EXPECT_NEAR(curve->A, 0.15 + 0.05 * (E - 50) / 20, 1e-12) << E;  // A is linear over all three
  }
}

TEST(ExtractCurve, FindsNothingOutsideTheCurves) {
  EXPECT_FALSE(ExtractCurve(ThreeCurves(), 49.99));
  EXPECT_FALSE(ExtractCurve(ThreeCurves(), 90.01));
  EXPECT_FALSE(ExtractCurve(CurveSet(), 70));
}

TEST(FindVOnCurve, InvertsTheCurve) {
  // R = 0.2 - 0.05 ln V, so V = exp((0.2 - R) / 0.05). Near V the slope is 0.05 / V, so 1E-5 in R
  // is V / 5000 in V.
  const EfficiencyCurve curve = Logarithmic(70, 0.20, 1.5);
  for (double R = 0.105; R < 0.178; R += 0.0037) {
    const double expected = std::exp((0.2 - R) / 0.05);
    const auto V = FindVOnCurve(R, curve, 1e-5, 5e-6);
    ASSERT_TRUE(V) << R;
    EXPECT_NEAR(*V, expected, expected / 5000 + 5e-6) << R;
  }
}

TEST(FindVOnCurve, AcceptsTheEndsAndRefusesBeyond) {
  const EfficiencyCurve curve = Logarithmic(70, 0.20, 1.5);
  EXPECT_TRUE(FindVOnCurve(CurveR(1.5, curve), curve, 1e-5, 5e-6));
  EXPECT_TRUE(FindVOnCurve(CurveR(7, curve), curve, 1e-5, 5e-6));
  EXPECT_FALSE(FindVOnCurve(CurveR(1.5, curve) + 1e-9, curve, 1e-5, 5e-6));
  EXPECT_FALSE(FindVOnCurve(CurveR(7, curve) - 1e-9, curve, 1e-5, 5e-6));
}

TEST(FindVOnCurve, StopsAtItsFirstMiddleWithinTheTolerance) {
  // Halving 1...3 gives 2 first; a rate that is only 1E-6 away stops there.
  const EfficiencyCurve curve = Logarithmic(50, 0.15, 1, 3);
  EXPECT_EQ(FindVOnCurve(CurveR(2, curve) + 1e-6, curve, 1e-5, 5e-6), 2.0);
}

TEST(FindVOnCurve, EndsOnACurveThatJumpsPastTheRate) {
  // A curve so steep that the tolerance on R is never met ends by the tolerance on V.
  EfficiencyCurve steep = Logarithmic(50, 0, 1, 3);
  steep.B = -1e9;
  const auto V = FindVOnCurve(-1e9 * std::log(2.5), steep, 1e-5, 5e-6);
  ASSERT_TRUE(V);
  EXPECT_NEAR(*V, 2.5, 5e-6);
}

TEST(FindVOnCurve, GivesUpWhereDoublesAreTooCoarseForBothTolerances) {
  // Around 3E299 inches neighbouring doubles lie farther apart than the tolerance on V, and this
  // curve's values jump over R = 1 by far more than the tolerance on R: a search without end.
  EfficiencyCurve endless = Logarithmic(50, 0, 1e299, 1e300);
  endless.B = -1e200;
  endless.A = 1e200 * std::log(3e299);
  EXPECT_FALSE(FindVOnCurve(1.0, endless, 1e-5, 5e-6));
}

TEST(FindEBetweenCurves, IsLinearInRAtOneV) {
  // Both coefficients A and E are linear in t, so E = 50 + 20 (R - R50) / (R70 - R50).
  const EfficiencyCurve A = Logarithmic(50, 0.15, 1);
  const EfficiencyCurve B = Logarithmic(70, 0.20, 1.5);
  for (double share = 0.05; share < 1; share += 0.09) {
    const double V = 3;
    const double R = 0.15 + 0.05 * share - 0.05 * std::log(V);
    const auto found = FindEBetweenCurves(V, R, A, B);
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->E, 50 + 20 * share, 1e-9);
    EXPECT_NEAR(found->t, share, 1e-11);
  }
}

TEST(FindEBetweenCurves, TakesTheCurveItselfWithinTheTolerance) {
  const EfficiencyCurve A = Logarithmic(50, 0.15, 1);
  const EfficiencyCurve B = Logarithmic(70, 0.20, 1.5);
  for (const double off : {0.0, 9e-6, -9e-6}) {
    EXPECT_EQ(FindEBetweenCurves(3, CurveR(3, A) + off, A, B)->E, 50) << off;
    EXPECT_EQ(FindEBetweenCurves(3, CurveR(3, B) + off, A, B)->E, 70) << off;
  }
  EXPECT_NE(FindEBetweenCurves(3, CurveR(3, A) + 1.1e-5, A, B)->E, 50);
}

TEST(FindEBetweenCurves, InterpolatesEveryCoefficient) {
  // At one V every coefficient moves R in proportion to E, so E = 50 + 20 (R - R50) / (R70 - R50).
  const CurveSet set = TwoDifferentCurves();
  const EfficiencyCurve& A = set.curves[0];
  const EfficiencyCurve& B = set.curves[1];
  const double V = 3;
  const double lower = CurveR(V, A);
  const double upper = CurveR(V, B);
  for (const double share : {0.1, 0.4, 0.75}) {
    const auto found = FindEBetweenCurves(V, lower + (upper - lower) * share, A, B);
    ASSERT_TRUE(found) << share;
    EXPECT_NEAR(found->E, 50 + 20 * share, 1e-9);
    EXPECT_NEAR(found->t, share, 1e-11);
  }
  EXPECT_EQ(FindEBetweenCurves(V, lower, A, B)->t, 0);
  EXPECT_EQ(FindEBetweenCurves(V, upper, A, B)->t, 1);
}

TEST(FindEBetweenCurves, OfTwoCurvesWithinTheToleranceItTakesTheHigherE) {
  const EfficiencyCurve A = Logarithmic(50, 0.15, 1);
  const EfficiencyCurve B = Logarithmic(70, 0.150008, 1);
  EXPECT_EQ(FindEBetweenCurves(3, CurveR(3, A) + 1e-6, A, B)->E, 70);
  EXPECT_EQ(FindEBetweenCurves(3, CurveR(3, A), A, A)->E, 50);  // no quotient is needed
}

TEST(FindEBetweenCurves, GivesUpWhereItsStepsAreTooCoarse) {
  // A sum of two numbers near 1E20 can only be a multiple of 16384, which never comes within 1E-5
  // of this rate.
  const double shift = 1e20 * std::log(2.0);
  EfficiencyCurve A = Logarithmic(50, shift + 1.5e16, 1);
  EfficiencyCurve B = Logarithmic(70, shift + 2e16, 1);
  A.B = B.B = -1e20;
  EXPECT_FALSE(FindEBetweenCurves(2, 1.7e16 + 2, A, B));
}

TEST(FindEBetweenCurves, GivesUpOnWhatIsNotANumber) {
  EfficiencyCurve A = Logarithmic(50, 0.15, 1);
  A.A = std::nan("");
  EXPECT_FALSE(FindEBetweenCurves(3, 0.13, A, Logarithmic(70, 0.20, 1.5)));
}

TEST(FindEBetweenCurves, EqualEOrEqualRIsADivisionByZero) {
  const EfficiencyCurve A = Logarithmic(50, 0.15, 1);
  EfficiencyCurve sameE = Logarithmic(50, 0.20, 1);
  EXPECT_THROW(FindEBetweenCurves(3, 0.13, A, sameE), DivisionByZeroError);
  EfficiencyCurve sameR = Logarithmic(70, 0.15, 1);
  EXPECT_THROW(FindEBetweenCurves(3, 0.13, A, sameR), DivisionByZeroError);
}

}  // namespace
}  // namespace orvik
