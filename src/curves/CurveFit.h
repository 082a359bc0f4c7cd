// Fits one design curve R = A + B L + C L^2 + D L^3, L = ln V, to simulated rates: least squares of
// the errors in efficiency, under a bound on each error and the other requirements on a curve.
#pragma once

#include <optional>
#include <vector>

#include "engine/EfficiencyCurve.h"

namespace orvik {

// The rates at one volume between which a curve is off by at most one point of E.
struct RateBand {
  double V;       // inches on the EIA
  double lower;   // R that reaches E - 1, inches per day on the EIA
  double target;  // R that reaches E
  double upper;   // R that reaches E + 1
};

// The requirements on a curve.
struct FitLimits {
  double mostError = 1;  // points of E at each band
  double VStart = 0;     // inches on the EIA
  double VEnd = 0;
  double mostR = 0;                        // at VStart, inches per day on the EIA
  double leastR = 0;                       // at VEnd
  const EfficiencyCurve* lower = nullptr;  // the neighbouring curve of lower E, if there is one
  double gap = 0;  // the least distance in R above it, from its own VStart on
};

// The curve falls everywhere from VStart (its neighbour's, where that is smaller) to VEnd. `bands`
// are those of volumes from VStart to VEnd, by rising volume. The result has no E and is not
// sampled. Nothing where no curve keeps the limits.
std::optional<EfficiencyCurve> FitCurve(const std::vector<RateBand>& bands,
                                        const FitLimits& limits);

// The largest slope dR/dL, L = ln V, of the curve between two volumes; negative for a falling
// curve.
double LargestSlope(const EfficiencyCurve& curve, double fromV, double toV);

}  // namespace orvik
