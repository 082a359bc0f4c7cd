// Finds the third of R, V and E from the other two on the design curves of a station.
//
// R: normalized reuse rate, inches per day on the EIA. V: normalized storage volume, inches on the
// EIA. E: efficiency, percent.
#pragma once

#include <optional>

#include "engine/FramedCurves.h"
#include "engine/Outcome.h"

namespace orvik {

// A point of the chart and the curve through it.
struct Solution {
  double V = 0;
  double R = 0;
  double E = 0;
  EfficiencyCurve curve;  // of this E; not sampled
};

// Either the solution, or an outcome that says what was refused.
struct Answer {
  Outcome outcome;
  std::optional<Solution> solution;  // where the outcome is Solved
};

// `curves` outlives the solver; null means that none are loaded, and nothing can be solved. Numeric
// faults of unusable curves (two that meet, samples beyond 16-bit pixels) are thrown as
// NumericError. Nothing is kept from one question to the next.
class Solver {
 public:
  explicit Solver(const FramedCurves* curves) : curves_(curves) {}

  Answer FindE(double R, double V) const;
  Answer FindV(double E, double R) const;
  Answer FindR(double E, double V) const;

  // The range check alone, in its order: V, then R. Solved where both pass.
  Outcome CheckRV(double R, double V) const;

  // E at a point of the chart that is known to lie on this pixel. Nothing where it lies between no
  // two curves.
  std::optional<Solution> Locate(double V, double R, FramePixel pixel) const;

 private:
  Outcome CheckV(double V) const;
  Outcome CheckR(double R) const;
  Outcome CheckE(double E) const;
  std::optional<Solution> LocateBetween(std::size_t i, double V, double R) const;
  const CurveSet& Set() const { return curves_->Curves(); }

  const FramedCurves* curves_;
};

}  // namespace orvik
