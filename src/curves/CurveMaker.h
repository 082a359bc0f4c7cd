// Makes the design curves of one place from its daily rainfall.
#pragma once

#include <string>
#include <vector>

#include "curves/ChartAxes.h"
#include "curves/CurveJudge.h"
#include "curves/PondDays.h"
#include "engine/CurveSet.h"

namespace orvik {

// No curve deviates by more from what a simulation finds, percentage points of E.
inline constexpr double kMostError = 1.0;
inline constexpr double kMostMeanError = 0.6;

struct MadeCurves {
  CurveSet Set;                    // as a curve file holds it, curves sampled
  std::vector<CurveError> Errors;  // one for each curve
};

// Curves for E = 50, 55 ... 95 percent, each from the smallest volume (in steps of 0.05 inch) at
// which it keeps the two limits of error, stays within the axes, falls, and keeps its distance from
// the curve below. The whole set passes CheckCurves. Throws
// Refusal, naming the efficiency, where there is no such curve.
MadeCurves MakeCurves(const PondDays& days, const ChartAxes& axes, const std::string& title);

}  // namespace orvik
