#include "engine/CurveQueries.h"

#include <cmath>

#include "base/Quotient.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

constexpr double kRateTolerance = 1e-5;  // in/day: closer than this, a point is on a curve

// Both searches end long before this in every usable curve file: halving 8E+54 inches 200 times
// leaves less than 5E-6, and on curves interpolated linearly in E the false position is exact after
// one step.
constexpr int kMostBisections = 200;
constexpr int kMostFalsePositions = 100;

double Interpolate(double from, double to, double t) {
  return from + (to - from) * t;
}

// (value - from) / (to - from), refusing the quotient by zero.
double Share(double value, double from, double to) {
  return Quotient(value - from, to - from);
}

double InterpolatedR(double V, const EfficiencyCurve& A, const EfficiencyCurve& B, double t) {
  return CurveR(V, Interpolate(A.A, B.A, t), Interpolate(A.B, B.B, t), Interpolate(A.C, B.C, t),
                Interpolate(A.D, B.D, t));
}

EfficiencyCurve WithoutSamples(const EfficiencyCurve& stored) {
  EfficiencyCurve curve;
  curve.E = stored.E;
  curve.A = stored.A;
  curve.B = stored.B;
  curve.C = stored.C;
  curve.D = stored.D;
  curve.VStart = stored.VStart;
  curve.VEnd = stored.VEnd;
  return curve;
}

struct Bound {
  double E;
  double R;
};

}  // namespace

EfficiencyCurve InterpolateCurve(const EfficiencyCurve& A, const EfficiencyCurve& B, double t,
                                 float E) {
  EfficiencyCurve curve;
  curve.E = E;
  curve.A = Interpolate(A.A, B.A, t);
  curve.B = Interpolate(A.B, B.B, t);
  curve.C = Interpolate(A.C, B.C, t);
  curve.D = Interpolate(A.D, B.D, t);
  curve.VStart = Interpolate(A.VStart, B.VStart, t);
  curve.VEnd = Interpolate(A.VEnd, B.VEnd, t);
  return curve;
}

std::optional<EfficiencyCurve> ExtractCurve(const CurveSet& set, double E) {
  const float single = ToSingle(E);
  for (const EfficiencyCurve& curve : set.curves) {
    if (single == curve.E) return WithoutSamples(curve);
  }
  for (std::size_t i = 0; i + 1 < set.curves.size(); ++i) {
    const EfficiencyCurve& A = set.curves[i];
    const EfficiencyCurve& B = set.curves[i + 1];
    if (!(A.E <= single && single <= B.E)) continue;
    return InterpolateCurve(A, B, Share(E, A.E, B.E), single);
  }
  return std::nullopt;
}

std::optional<double> FindVOnCurve(double R, const EfficiencyCurve& curve, double toleranceR,
                                   double toleranceV) {
  if (R > CurveR(curve.VStart, curve) || R < CurveR(curve.VEnd, curve)) return std::nullopt;
  double low = curve.VStart;
  double high = curve.VEnd;
  for (int i = 0; i < kMostBisections; ++i) {
    const double mid = (low + high) / 2;
    const double Rm = CurveR(mid, curve);
    if (std::fabs(Rm - R) < toleranceR || std::fabs(high - low) < toleranceV) return mid;
    (Rm > R ? low : high) = mid;
  }
  return std::nullopt;
}

std::optional<PointBetweenCurves> FindEBetweenCurves(double V, double R, const EfficiencyCurve& A,
                                                     const EfficiencyCurve& B) {
  Bound low{A.E, CurveR(V, A)};
  Bound high{B.E, CurveR(V, B)};
  if (std::fabs(R - high.R) < kRateTolerance) return PointBetweenCurves{high.E, 1.0};
  if (std::fabs(R - low.R) < kRateTolerance) return PointBetweenCurves{low.E, 0.0};
  for (int i = 0; i < kMostFalsePositions; ++i) {
    if (high.R == low.R) throw DivisionByZeroError();
    const double E = low.E + (high.E - low.E) * (R - low.R) / (high.R - low.R);
    const double t = Share(E, A.E, B.E);
    const double Rnew = InterpolatedR(V, A, B, t);
    if (std::fabs(Rnew - R) < kRateTolerance) return PointBetweenCurves{E, t};
    if (Rnew > R) {
      low = {E, Rnew};
    } else if (Rnew < R) {
      high = {E, Rnew};
    } else {
      return std::nullopt;  // not comparable: not a number
    }
  }
  return std::nullopt;
}

}  // namespace orvik
