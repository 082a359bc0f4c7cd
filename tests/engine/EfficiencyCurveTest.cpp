#include <gtest/gtest.h>

#include <cmath>

#include "engine/EfficiencyCurve.h"

namespace orvik {
namespace {

EfficiencyCurve CurveFrom(double VStart, double VEnd) {
  EfficiencyCurve curve;
  curve.A = 0.2;
  curve.B = -0.05;
  curve.VStart = VStart;
  curve.VEnd = VEnd;
  SampleCurve(curve);
  return curve;
}

TEST(CurveR, IsTheCubicInTheLogarithmOfV) {
  // At V = e, L = 1 and R is the sum of the coefficients; at V = 1, L = 0 and R = A.
  EXPECT_DOUBLE_EQ(CurveR(1.0, 0.5, 7, 8, 9), 0.5);
  EXPECT_NEAR(CurveR(std::exp(1.0), 0.5, 0.25, 0.125, 0.0625), 0.9375, 1e-15);
  EXPECT_NEAR(CurveR(std::exp(2.0), 1, 1, 1, 1), 1 + 2 + 4 + 8, 1e-13);
  EXPECT_NEAR(CurveR(std::exp(-1.0), 1, 1, 1, 1), 0, 1e-15);
}

TEST(SampleCurve, TakesAHundredPointsFromVStartToVEnd) {
  const EfficiencyCurve curve = CurveFrom(0.6, 7);
  EXPECT_EQ(curve.NumPoints, 100);
  ASSERT_EQ(curve.V.size(), 100U);
  ASSERT_EQ(curve.R.size(), 100U);
  EXPECT_EQ(curve.V.front(), 0.6);
  EXPECT_EQ(curve.V.back(), 7);
  EXPECT_EQ(curve.R.back(), CurveR(7, curve));
}

TEST(SampleCurve, AddsTheStepEachTime) {
  // 98 additions of 6.4 / 99 gather rounding errors, so V(99) is not VEnd - step to the last bit.
  const EfficiencyCurve curve = CurveFrom(0.6, 7);
  const double step = (7 - 0.6) / 99;
  double sum = 0.6;
  for (int j = 2; j <= 99; ++j) sum += step;
  EXPECT_EQ(curve.V[98], sum);
  EXPECT_NE(curve.V[98], 7 - step);
  EXPECT_NEAR(curve.V[98], 7 - step, 1e-13);
}

TEST(SampleCurve, WithoutExtentHasAHundredPointsAtTheSameV) {
  const EfficiencyCurve curve = CurveFrom(2, 2);
  for (const double V : curve.V) EXPECT_EQ(V, 2);
}

}  // namespace
}  // namespace orvik
