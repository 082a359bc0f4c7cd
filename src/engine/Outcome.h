// The outcome of a design question, and the limit at which it was refused.
#pragma once

#include <cstdint>

namespace orvik {

enum class OutcomeKind : std::uint8_t {
  Unasked,
  Solved,
  VolumeBelowAxis,        // V is less than the chart's; the limit is in inches on the EIA
  VolumeAboveAxis,        // V is more than the chart's
  RateBelowAxis,          // R is less than the chart's; the limit is in inches per day on the EIA
  RateAboveAxis,          // R is more than the chart's
  EfficiencyBelowCurves,  // E is less than the lowest curve's; the limit is in percent
  EfficiencyAboveCurves,  // E is more than the highest curve's
  PointOffCurves,         // the point lies between no two curves
  NoCurve,                // there is no curve of this E
  RateOffCurve,           // R is not on the curve of E; the limit is the R of its nearer end
  VolumeBelowCurve,       // V lies before the curve of E begins; the limit is its VStart
  VolumeAboveCurve,       // V lies beyond the end of the curve of E; the limit is its VEnd
};

struct Outcome {
  OutcomeKind kind = OutcomeKind::Unasked;
  double limit = 0;  // of the quantity that was refused; 0 where no single limit was met

  bool IsSolved() const { return kind == OutcomeKind::Solved; }
  bool operator==(const Outcome&) const = default;
};

}  // namespace orvik
