#include "curves/CurveFit.h"

#include <algorithm>
#include <cmath>

#include "curves/LinearProgram.h"

namespace orvik {
namespace {

// The unknowns are A, B, C, D and the largest error.
using Vector = LinearProgram::Vector;

// A curve falls at least this fast, in R per unit of ln V, wherever it is evaluated.
constexpr double kLeastFall = 2e-4;

// ... and at least this share as fast as the simulated rates do: where a curve is much flatter than
// the climate, V could be found from R only roughly.
constexpr double kFallShare = 0.5;

constexpr int kGridPoints = 48;  // volumes at which falling and the gap are required

Vector CurveRow(double V, double sign, double errorFactor) {
  const double L = std::log(V);
  return {sign, sign * L, sign * L * L, sign * L * L * L, errorFactor};
}

void RequireBands(LinearProgram& program, const std::vector<RateBand>& bands) {
  for (const RateBand& band : bands) {
    program.Require(CurveRow(band.V, -1, band.upper - band.target), -band.target);
    program.Require(CurveRow(band.V, 1, band.target - band.lower), band.target);
  }
  program.Require({0, 0, 0, 0, 1}, 0);
}

void RequireFall(LinearProgram& program, double L, double fall) {
  program.Require({0, -1, -2 * L, -3 * L * L, 0}, fall);
}

// Between each two volumes, and at the last one, the curve falls with the simulated rates.
void RequireFallOfRates(LinearProgram& program, const std::vector<RateBand>& bands) {
  for (std::size_t i = 1; i < bands.size(); ++i) {
    const double before = std::log(bands[i - 1].V);
    const double after = std::log(bands[i].V);
    const double fall = kFallShare * (bands[i - 1].target - bands[i].target) / (after - before);
    RequireFall(program, (before + after) / 2, fall);
    if (i + 1 == bands.size()) RequireFall(program, after, fall);
  }
}

// Where the curve is evaluated: from its neighbour's VStart, at which points between the two are
// located, or its own.
double EvaluatedFrom(const FitLimits& limits) {
  return limits.lower == nullptr ? limits.VStart : std::min(limits.VStart, limits.lower->VStart);
}

void RequireShape(LinearProgram& program, const FitLimits& limits) {
  const double first = std::log(EvaluatedFrom(limits));
  const double step = (std::log(limits.VEnd) - first) / (kGridPoints - 1);
  for (int i = 0; i < kGridPoints; ++i) {
    const double L = first + step * i;
    RequireFall(program, L, kLeastFall);
    if (limits.lower == nullptr) continue;
    const double V = std::exp(L);
    program.Require(CurveRow(V, 1, 0), CurveR(V, *limits.lower) + limits.Gap);
  }
  program.Require(CurveRow(limits.VStart, -1, 0), -limits.MostR);
  program.Require(CurveRow(limits.VEnd, 1, 0), limits.LeastR);
}

}  // namespace

std::optional<FittedCurve> FitCurve(const std::vector<RateBand>& bands, const FitLimits& limits) {
  LinearProgram program;
  RequireBands(program, bands);
  RequireFallOfRates(program, bands);
  RequireShape(program, limits);
  const auto x = program.Minimise({0, 0, 0, 0, 1});
  if (!x) return std::nullopt;
  FittedCurve fitted{{}, (*x)[4]};
  fitted.curve.A = (*x)[0];
  fitted.curve.B = (*x)[1];
  fitted.curve.C = (*x)[2];
  fitted.curve.D = (*x)[3];
  fitted.curve.VStart = limits.VStart;
  fitted.curve.VEnd = limits.VEnd;
  return fitted;
}

double LargestSlope(const EfficiencyCurve& curve, double fromV, double toV) {
  const double first = std::log(fromV);
  const double last = std::log(toV);
  const auto slope = [&](double L) { return curve.B + 2 * curve.C * L + 3 * curve.D * L * L; };
  double largest = std::max(slope(first), slope(last));
  if (curve.D < 0) {  // the slope is a parabola open below
    const double top = -curve.C / (3 * curve.D);
    if (top > first && top < last) largest = std::max(largest, slope(top));
  }
  return largest;
}

}  // namespace orvik
