// Makes the design curves of one place from its daily rainfall.
#pragma once

#include <string>
#include <vector>

#include "base/Refusal.h"
#include "curves/CurveJudge.h"
#include "engine/CurveSet.h"

namespace orvik {

struct ChartAxes;
struct PondDays;

// The limits for a curve's deviation from a simulation along it, percentage points of E.
inline constexpr double kMostError = 1.0;
inline constexpr double kMostMeanError = 0.6;

// What would make room for the curve.
enum class AxisRemedy { LargerRMax, LargerRMaxOrVMax };

// The axes have no room for one of the curves.
class AxesTooSmall : public Refusal {
 public:
  AxesTooSmall(const std::string& sentence, AxisRemedy remedy)
      : Refusal(sentence), remedy_(remedy) {}

  AxisRemedy Remedy() const { return remedy_; }

 private:
  AxisRemedy remedy_;
};

struct MadeCurves {
  CurveSet set;                    // as a curve file holds it, curves sampled
  std::vector<CurveError> errors;  // one for each curve
};

// Curves for E = 50, 55 ... 95 percent, each beginning at the smallest volume (in steps of 0.05
// inch) from which it keeps both limits of error, stays within the axes, falls, and keeps its
// distance from the curve below. The whole set passes CheckCurves. Throws AxesTooSmall, naming the
// efficiency, where there is no such curve, and Refusal where the set does not pass.
MadeCurves MakeCurves(const PondDays& days, const ChartAxes& axes, const std::string& title);

}  // namespace orvik
