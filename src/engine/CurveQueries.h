// Finds the curve of an efficiency, the volume of a rate on a curve, and the efficiency of a point
// between two curves.
#pragma once

#include <optional>

#include "engine/CurveSet.h"

namespace orvik {

// The curve of efficiency E (percent): a stored curve whose E equals E in single precision, else
// every parameter interpolated linearly in E between the first two neighbours that enclose it. Not
// sampled: whoever draws it does that. Nothing outside the stored curves.
std::optional<EfficiencyCurve> ExtractCurve(const CurveSet& set, double E);

// Every parameter of two curves interpolated linearly: A's for t = 0, B's for t = 1. E is set as
// given. Not sampled.
EfficiencyCurve InterpolateCurve(const EfficiencyCurve& A, const EfficiencyCurve& B, double t,
                                 float E);

// V (inches on the EIA) at which the curve, which falls as V grows, has the rate R (inches per day
// on the EIA). Bisection; stops within `toleranceR` of R or when V is known within `toleranceV`.
// Nothing when R lies above the curve's start or below its end.
std::optional<double> FindVOnCurve(double R, const EfficiencyCurve& curve, double toleranceR,
                                   double toleranceV);

// Where a point lies between two curves.
struct PointBetweenCurves {
  double E;  // percent
  double t;  // share of the way from curve A (0) to curve B (1)
};

// E at the point (V, R) between curve A (lower E) and curve B (higher E): that of a curve within
// 1E-5 in/day of the point, else by false position on the curve interpolated between the two.
// Nothing when the search does not end. Throws DivisionByZeroError when the two curves have the
// same E or pass through the same rate at V.
std::optional<PointBetweenCurves> FindEBetweenCurves(double V, double R, const EfficiencyCurve& A,
                                                     const EfficiencyCurve& B);

}  // namespace orvik
