#include "curves/CurveFit.h"

#include <algorithm>
#include <cmath>

#include "curves/BoundedLeastSquares.h"

namespace orvik {
namespace {

// The unknowns are the four coefficients of the scaled cubic.
using Vector = BoundedLeastSquares::Vector;

// A curve falls at least this fast, in R per unit of ln V, wherever it is evaluated. A curve that
// only just falls would have no clear V for a rate.
constexpr double kLeastFall = 2e-4;

// ... and at least this share as fast as the simulated rates: V could not be found well from R on a
// curve much flatter than the climate.
constexpr double kFallShare = 0.5;

constexpr int kGridPoints = 48;  // volumes at which the fall and the gap are required

// The cubic is fitted in z = (L - centre) / halfWidth, which runs from -1 to 1, so that the powers
// of z are far from linearly dependent and the normal equations are well conditioned.
struct ScaledLogarithm {
  double centre;
  double halfWidth;

  ScaledLogarithm(double fromV, double toV)
      : centre((std::log(toV) + std::log(fromV)) / 2),
        halfWidth((std::log(toV) - std::log(fromV)) / 2) {}

  // sign x R(V).
  Vector RateRow(double V, double sign) const {
    const double z = (std::log(V) - centre) / halfWidth;
    return {sign, sign * z, sign * z * z, sign * z * z * z};
  }

  // The fall -dR/dL at L.
  Vector FallRow(double L) const {
    const double z = (L - centre) / halfWidth;
    return {0, -1 / halfWidth, -2 * z / halfWidth, -3 * z * z / halfWidth};
  }

  // The coefficients of the cubic in L: x[0] + x[1] z + x[2] z^2 + x[3] z^3 multiplied out.
  EfficiencyCurve Unscale(const Vector& x) const {
    const double b = x[1] / halfWidth;
    const double c = x[2] / (halfWidth * halfWidth);
    const double d = x[3] / (halfWidth * halfWidth * halfWidth);
    EfficiencyCurve curve;
    curve.A = x[0] - b * centre + c * centre * centre - d * centre * centre * centre;
    curve.B = b - 2 * c * centre + 3 * d * centre * centre;
    curve.C = c - 3 * d * centre;
    curve.D = d;
    return curve;
  }
};

// Turns the requirements on one curve into targets and inequalities for the least squares.
class FitProgram {
 public:
  FitProgram(const std::vector<RateBand>& bands, const FitLimits& limits)
      : bands_(bands), limits_(limits), scale_(EvaluatedFrom(limits), limits.VEnd) {
    AddBands();
    RequireFallOfRates();
    RequireShape();
  }

  std::optional<EfficiencyCurve> Solve() const {
    const auto x = program_.Solve();
    if (!x) return std::nullopt;
    EfficiencyCurve curve = scale_.Unscale(*x);
    curve.VStart = limits_.VStart;
    curve.VEnd = limits_.VEnd;
    return curve;
  }

 private:
  // The smallest volume at which the curve is evaluated: where its lower neighbour begins earlier,
  // points between the two are located from there on.
  static double EvaluatedFrom(const FitLimits& limits) {
    return limits.lower == nullptr ? limits.VStart : std::min(limits.VStart, limits.lower->VStart);
  }

  // The width of the volumes that band i represents, inches.
  double WidthOf(std::size_t i) const {
    const double before = bands_[i == 0 ? 0 : i - 1].V;
    const double after = bands_[std::min(i + 1, bands_.size() - 1)].V;
    return (after - before) / 2;
  }

  void AddBands() {
    for (std::size_t i = 0; i < bands_.size(); ++i) {
      const RateBand& band = bands_[i];
      // An error in R, divided by the rate of one point of E, is an error in points of E. Squared
      // and weighted by the width, the errors approximate an integral over V.
      const double ratePerPoint = (band.upper - band.lower) / 2;
      program_.AddTarget(scale_.RateRow(band.V, 1), band.target,
                         WidthOf(i) / (ratePerPoint * ratePerPoint));
      program_.Require(scale_.RateRow(band.V, -1),
                       -band.target - limits_.mostError * (band.upper - band.target));
      program_.Require(scale_.RateRow(band.V, 1),
                       band.target - limits_.mostError * (band.target - band.lower));
    }
  }

  // Between neighbouring volumes, and at the last one, the curve falls with the simulated rates.
  void RequireFallOfRates() {
    for (std::size_t i = 1; i < bands_.size(); ++i) {
      const double before = std::log(bands_[i - 1].V);
      const double after = std::log(bands_[i].V);
      const double fall = (bands_[i - 1].target - bands_[i].target) / (after - before);
      program_.Require(scale_.FallRow((before + after) / 2), kFallShare * fall);
      if (i + 1 == bands_.size()) program_.Require(scale_.FallRow(after), kFallShare * fall);
    }
  }

  void RequireShape() {
    const double first = std::log(EvaluatedFrom(limits_));
    const double step = (std::log(limits_.VEnd) - first) / (kGridPoints - 1);
    for (int i = 0; i < kGridPoints; ++i) {
      const double L = first + step * i;
      program_.Require(scale_.FallRow(L), kLeastFall);
      if (limits_.lower == nullptr) continue;
      const double V = std::exp(L);
      program_.Require(scale_.RateRow(V, 1), CurveR(V, *limits_.lower) + limits_.gap);
    }
    program_.Require(scale_.RateRow(limits_.VStart, -1), -limits_.mostR);
    program_.Require(scale_.RateRow(limits_.VEnd, 1), limits_.leastR);
  }

  const std::vector<RateBand>& bands_;
  const FitLimits& limits_;
  ScaledLogarithm scale_;
  BoundedLeastSquares program_;
};

}  // namespace

std::optional<EfficiencyCurve> FitCurve(const std::vector<RateBand>& bands,
                                        const FitLimits& limits) {
  return FitProgram(bands, limits).Solve();
}

double LargestSlope(const EfficiencyCurve& curve, double fromV, double toV) {
  const double first = std::log(fromV);
  const double last = std::log(toV);
  const auto slope = [&](double L) { return curve.B + 2 * curve.C * L + 3 * curve.D * L * L; };
  double largest = std::max(slope(first), slope(last));
  if (curve.D < 0) {  // the slope is a parabola in L with its maximum at -C / 3D
    const double top = -curve.C / (3 * curve.D);
    if (top > first && top < last) largest = std::max(largest, slope(top));
  }
  return largest;
}

}  // namespace orvik
