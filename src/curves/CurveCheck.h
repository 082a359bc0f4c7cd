// Checks that a set of design curves is fit for calculation.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvik {

struct CurveSet;

// One sentence for each violation of these rules; none for a good set:
// - the axes' intervals divide their ranges into whole steps;
// - every curve is finite, begins before it ends, falls from VStart to VEnd, and lies within the
//   axes;
// - E is above 0 and not above 100 percent, and rises from curve to curve;
// - each curve lies above the one before with a gap that the chart can show, at every volume at
//   which both are evaluated: from the smaller VStart to the smaller VEnd;
// - with `meanRunoff` (inches per day on the EIA): R lies above E x mean runoff, since no pond uses
//   more than arrives;
// - labels lie within the axes.
// Requires sampled curves, as ReadCurveFile gives them.
std::vector<std::string> CheckCurves(const CurveSet& set, std::optional<double> meanRunoff);

}  // namespace orvik
