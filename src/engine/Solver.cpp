#include "engine/Solver.h"

#include <utility>

#include "base/Rounding.h"
#include "engine/CurveQueries.h"

namespace orvik {
namespace {

using enum OutcomeKind;

constexpr double kSolveToleranceR = 1e-5;  // in/day
constexpr double kSolveToleranceV = 5e-6;  // inches

constexpr Outcome kPassed{Solved};

Answer Refused(OutcomeKind kind, double limit = 0) {
  return {{kind, limit}, std::nullopt};
}

Answer SolvedAt(double V, double R, double E, EfficiencyCurve curve) {
  return {kPassed, Solution{V, R, E, std::move(curve)}};
}

// The curve falls as V grows: above its start, or else below its end.
Answer RefusedByEndOf(const EfficiencyCurve& curve, double R) {
  const double start = CurveR(curve.VStart, curve);
  return Refused(RateOffCurve, R > start ? start : CurveR(curve.VEnd, curve));
}

}  // namespace

// --- Range checks; a value on a limit passes ---

Outcome Solver::CheckV(double V) const {
  if (V < Set().VMin) return {VolumeBelowAxis, Set().VMin};
  if (V > Set().VMax) return {VolumeAboveAxis, Set().VMax};
  return kPassed;
}

Outcome Solver::CheckR(double R) const {
  if (R < Set().RMin) return {RateBelowAxis, Set().RMin};
  if (R > Set().RMax) return {RateAboveAxis, Set().RMax};
  return kPassed;
}

Outcome Solver::CheckE(double E) const {
  const float single = ToSingle(E);
  const float lowest = Set().curves.front().E;
  const float highest = Set().curves.back().E;
  if (single < lowest) return {EfficiencyBelowCurves, lowest};
  if (single > highest) return {EfficiencyAboveCurves, highest};
  return kPassed;
}

Outcome Solver::CheckRV(double R, double V) const {
  if (!curves_) return {PointOffCurves};
  const Outcome volume = CheckV(V);
  return volume.IsSolved() ? CheckR(R) : volume;
}

// --- The three questions ---

Answer Solver::FindE(double R, double V) const {
  const Outcome checked = CheckRV(R, V);
  if (!checked.IsSolved()) return {checked, std::nullopt};
  auto found = Locate(V, R, PixelOfMark(V, R, curves_->Geometry()));
  if (!found) return Refused(PointOffCurves);
  return {kPassed, std::move(found)};
}

Answer Solver::FindV(double E, double R) const {
  if (!curves_) return Refused(NoCurve);
  if (const Outcome e = CheckE(E); !e.IsSolved()) return {e, std::nullopt};
  if (const Outcome r = CheckR(R); !r.IsSolved()) return {r, std::nullopt};
  auto curve = ExtractCurve(Set(), E);
  if (!curve) return Refused(NoCurve);
  const auto V = FindVOnCurve(R, *curve, kSolveToleranceR, kSolveToleranceV);
  if (!V) return RefusedByEndOf(*curve, R);
  return SolvedAt(*V, R, E, std::move(*curve));
}

Answer Solver::FindR(double E, double V) const {
  if (!curves_) return Refused(NoCurve);
  if (const Outcome e = CheckE(E); !e.IsSolved()) return {e, std::nullopt};
  if (const Outcome v = CheckV(V); !v.IsSolved()) return {v, std::nullopt};
  auto curve = ExtractCurve(Set(), E);
  if (!curve) return Refused(NoCurve);
  if (V < curve->VStart) return Refused(VolumeBelowCurve, curve->VStart);
  if (V > curve->VEnd) return Refused(VolumeAboveCurve, curve->VEnd);
  const double R = CurveR(V, *curve);
  return SolvedAt(V, R, E, std::move(*curve));
}

// --- The efficiency of a point ---

// The first pair of curves in their order that also solves.
std::optional<Solution> Solver::Locate(double V, double R, FramePixel pixel) const {
  if (!curves_) return std::nullopt;
  for (std::size_t i = 0; i + 1 < Set().curves.size(); ++i) {
    if (!curves_->IsBetweenCurves(i, pixel)) continue;
    if (auto found = LocateBetween(i, V, R)) return found;
  }
  return std::nullopt;
}

std::optional<Solution> Solver::LocateBetween(std::size_t i, double V, double R) const {
  const EfficiencyCurve& A = Set().curves[i];
  const EfficiencyCurve& B = Set().curves[i + 1];
  const auto found = FindEBetweenCurves(V, R, A, B);
  if (!found) return std::nullopt;
  return Solution{V, R, found->E, InterpolateCurve(A, B, found->t, ToSingle(found->E))};
}

}  // namespace orvik
