#include "curves/CurveJudge.h"

#include <algorithm>
#include <cmath>

#include "engine/EfficiencyCurve.h"
#include "pond/PondDays.h"
#include "pond/PondSimulation.h"

namespace orvik {
namespace {

constexpr double kStepV = 0.05;        // inches
constexpr double kSampleSlack = 1e-9;  // of a step: rounding must not add another one
constexpr double kMostSamples = 2000;  // for curves beyond any chart

}  // namespace

std::vector<double> JudgedVolumes(double first, double last) {
  const auto steps = static_cast<int>(
      std::clamp(std::ceil((last - first) / kStepV - kSampleSlack), 1.0, kMostSamples));
  std::vector<double> volumes;
  volumes.reserve(static_cast<std::size_t>(steps) + 1);
  for (int i = 0; i < steps; ++i) volumes.push_back(first + (last - first) * i / steps);
  volumes.push_back(last);
  return volumes;
}

CurveError JudgeCurve(const PondDays& days, const EfficiencyCurve& curve) {
  std::vector<PondCell> cells;
  for (const double V : JudgedVolumes(curve.VStart, curve.VEnd)) {
    cells.push_back({V, CurveR(V, curve)});
  }
  CurveError error;
  for (const double E : SimulateEfficiencies(days, cells)) {
    const double deviation = std::fabs(E - static_cast<double>(curve.E));
    error.max = std::max(error.max, deviation);
    error.mean += deviation / static_cast<double>(cells.size());
  }
  return error;
}

}  // namespace orvik
