// One design curve: the reuse rate that reaches one efficiency, as a function of the storage
// volume.
#pragma once

#include <cstdint>
#include <vector>

namespace orvik {

// R = A + B L + C L^2 + D L^3 with L = ln V, for VStart <= V <= VEnd. VStart is positive.
struct EfficiencyCurve {
  float E = 0;   // efficiency, percent
  double A = 0;  // coefficients; R in inches per day on the EIA
  double B = 0;
  double C = 0;
  double D = 0;
  double VStart = 0;  // inches on the EIA
  double VEnd = 0;
  // Number of samples.
  std::int16_t NumPoints = 0;  // NOLINT(readability-identifier-naming): the suite's name
  std::vector<double> V;  // the sampled curve, for drawing: element 0 is the first point, at VStart
  std::vector<double> R;
};

// Every curve is drawn through this many samples.
inline constexpr std::int16_t kPointsPerCurve = 100;

// R (inches per day on the EIA) at V > 0 (inches on the EIA) on the cubic with these coefficients.
double CurveR(double V, double A, double B, double C, double D);
double CurveR(double V, const EfficiencyCurve& curve);

// Fills NumPoints, V and R: equal steps from VStart, each added to the one before, and VEnd exactly
// at the last point.
void SampleCurve(EfficiencyCurve& curve);

}  // namespace orvik
