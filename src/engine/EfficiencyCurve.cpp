#include "engine/EfficiencyCurve.h"

#include <cmath>

namespace orvik {

double CurveR(double V, double A, double B, double C, double D) {
  const double L = std::log(V);
  return A + B * L + C * (L * L) + D * (L * L * L);
}

double CurveR(double V, const EfficiencyCurve& curve) {
  return CurveR(V, curve.A, curve.B, curve.C, curve.D);
}

void SampleCurve(EfficiencyCurve& curve) {
  constexpr auto count = static_cast<std::size_t>(kPointsPerCurve);
  curve.NumPoints = kPointsPerCurve;
  curve.V.resize(count);
  curve.R.resize(count);
  const double step = (curve.VEnd - curve.VStart) / (kPointsPerCurve - 1);
  curve.V.front() = curve.VStart;
  for (std::size_t j = 1; j + 1 < count; ++j) curve.V[j] = curve.V[j - 1] + step;
  curve.V.back() = curve.VEnd;
  for (std::size_t j = 0; j < count; ++j) curve.R[j] = CurveR(curve.V[j], curve);
}

}  // namespace orvik
