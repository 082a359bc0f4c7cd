// Judges a design curve by the efficiency that a simulation finds along it.
#pragma once

#include <vector>

namespace orvik {

struct EfficiencyCurve;
struct PondDays;

// Deviation of the simulated efficiency from the curve's E, in percentage points, without sign.
struct CurveError {
  double max = 0;
  double mean = 0;  // over volumes in equal steps
};

// Volumes (inches on the EIA) from `first` to `last` in equal steps of at most 0.05 (longer only
// for ranges above 100 inches), both ends included.
std::vector<double> JudgedVolumes(double first, double last);

// Simulates at (V, R on the curve) from VStart to VEnd.
CurveError JudgeCurve(const PondDays& days, const EfficiencyCurve& curve);

}  // namespace orvik
