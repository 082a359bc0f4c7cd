#include "curves/EfficiencyTable.h"

#include <cmath>
#include <utility>

#include "pond/PondDays.h"
#include "pond/PondSimulation.h"

namespace orvik {

EfficiencyTable::EfficiencyTable(const PondDays& days, std::vector<double> V, std::vector<double> R)
    : V_(std::move(V)), R_(std::move(R)) {
  std::vector<PondCell> cells;
  cells.reserve(V_.size() * R_.size());
  for (const double v : V_) {
    for (const double r : R_) cells.push_back({v, r});
  }
  E_ = SimulateEfficiencies(days, cells);
}

std::optional<double> EfficiencyTable::RateAt(std::size_t v, double E) const {
  double lowerR = 0;  // without reuse the efficiency is 0
  double lowerE = 0;
  for (std::size_t r = 0; r < R_.size(); ++r) {
    const double upperE = EAt(v, r);
    if (upperE >= E) return lowerR + (R_[r] - lowerR) * (E - lowerE) / (upperE - lowerE);
    lowerR = R_[r];
    lowerE = upperE;
  }
  return std::nullopt;
}

std::vector<double> GeometricSteps(double first, double last, std::size_t count) {
  std::vector<double> steps(count);
  const double ratio = std::log(last / first) / static_cast<double>(count - 1);
  for (std::size_t i = 0; i < count; ++i)
    steps[i] = first * std::exp(ratio * static_cast<double>(i));
  steps.back() = last;
  return steps;
}

}  // namespace orvik
