#include <gtest/gtest.h>

#include <cmath>

#include "curves/CurveFit.h"
#include "curves/EfficiencyTable.h"

namespace orvik {
namespace {

EfficiencyCurve Cubic(double A, double B, double C, double D) {
  EfficiencyCurve curve;
  curve.A = A;
  curve.B = B;
  curve.C = C;
  curve.D = D;
  curve.VStart = 1;
  curve.VEnd = 7;
  return curve;
}

template <typename Rate>
std::vector<RateBand> BandsOf(Rate rate, double halfWidth) {
  std::vector<RateBand> bands;
  for (const double V : GeometricSteps(1, 7, 30)) {
    bands.push_back({V, rate(V) - halfWidth, rate(V), rate(V) + halfWidth});
  }
  return bands;
}

const FitLimits kWide{.mostError = 1, .VStart = 1, .VEnd = 7, .mostR = 9, .leastR = 0};

TEST(FitCurve, RecoversACubicInLnV) {
  const EfficiencyCurve cubic = Cubic(0.4, -0.2, 0.05, -0.006);
  const auto fitted = FitCurve(BandsOf([&](double V) { return CurveR(V, cubic); }, 0.01), kWide);
  ASSERT_TRUE(fitted);
  EXPECT_NEAR(fitted->A, cubic.A, 1e-9);
  EXPECT_NEAR(fitted->B, cubic.B, 1e-9);
  EXPECT_NEAR(fitted->C, cubic.C, 1e-9);
  EXPECT_NEAR(fitted->D, cubic.D, 1e-9);
  EXPECT_EQ(fitted->VStart, 1);
  EXPECT_EQ(fitted->VEnd, 7);
}

TEST(FitCurve, KeepsEveryErrorWithinTheBound) {
  const auto rate = [](double V) { return 0.06 + 0.3 / (V * V); };  // no cubic in ln V
  for (const double halfWidth : {0.002, 0.004, 0.008, 0.016}) {
    const auto fitted = FitCurve(BandsOf(rate, halfWidth), kWide);
    if (!fitted) {
      EXPECT_LT(halfWidth, 0.008);
      continue;
    }
    for (const double V : GeometricSteps(1, 7, 30)) {
      EXPECT_LE(std::fabs(CurveR(V, *fitted) - rate(V)), halfWidth + 1e-9) << V;
    }
    EXPECT_LT(LargestSlope(*fitted, 1, 7), 0);
  }
}

TEST(FitCurve, StaysAboveItsNeighbourAlsoBeforeItsOwnStart) {
  EfficiencyCurve lower = Cubic(0.3, -0.25, 0.08, -0.009);
  lower.VStart = 0.5;
  FitLimits limits = kWide;
  limits.lower = &lower;
  limits.gap = 0.02;
  const auto bands = BandsOf([&](double V) { return CurveR(V, lower) + 0.021; }, 0.01);
  const auto fitted = FitCurve(bands, limits);
  ASSERT_TRUE(fitted);
  for (const double V : GeometricSteps(0.5, 7, 200)) {
    EXPECT_GE(CurveR(V, *fitted), CurveR(V, lower) + 0.02 - 1e-4) << V;
  }
  EXPECT_LT(LargestSlope(*fitted, 0.5, 7), 0);
}

TEST(FitCurve, KeepsTheLimitsOfTheAxisAndOfTheRunoff) {
  const EfficiencyCurve cubic = Cubic(0.4, -0.2, 0.05, -0.006);
  const auto bands = BandsOf([&](double V) { return CurveR(V, cubic); }, 0.02);
  FitLimits limits = kWide;
  limits.mostR = 0.39;
  limits.leastR = CurveR(7, cubic) + 0.01;
  const auto fitted = FitCurve(bands, limits);
  ASSERT_TRUE(fitted);
  EXPECT_LE(CurveR(1, *fitted), 0.39 + 1e-9);
  EXPECT_GE(CurveR(7, *fitted), limits.leastR - 1e-9);
  limits.mostR = 0.3;  // more than the bound allows
  EXPECT_FALSE(FitCurve(bands, limits));
}

TEST(LargestSlope, IsFoundBetweenTheEndsToo) {
  // dR/dL = -1 + 2 L - L^2 touches 0 at L = 1 and is negative elsewhere.
  const EfficiencyCurve curve = Cubic(0, -1, 1, -1.0 / 3.0);
  EXPECT_NEAR(LargestSlope(curve, 1, 7), 0, 1e-12);
  EXPECT_NEAR(LargestSlope(curve, 1, std::exp(0.5)), -0.25, 1e-12);
}

}  // namespace
}  // namespace orvik
