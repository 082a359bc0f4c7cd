// Simulated efficiency over a grid of storage volumes and reuse rates, and the rates that reach a
// given efficiency.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orvik {

struct PondDays;

class EfficiencyTable {
 public:
  // Simulates the grid. V (inches on the EIA) and R (inches per day on the EIA) are positive and
  // rising.
  EfficiencyTable(const PondDays& days, std::vector<double> V, std::vector<double> R);

  const std::vector<double>& V() const { return V_; }
  double MostR() const { return R_.back(); }

  // The rate (inches per day on the EIA) that reaches E (percent) at volume V()[v]: linear between
  // the simulated rates. Nothing where the table's highest rate does not reach it.
  std::optional<double> RateAt(std::size_t v, double E) const;

 private:
  double EAt(std::size_t v, std::size_t r) const { return E_[v * R_.size() + r]; }

  std::vector<double> V_;
  std::vector<double> R_;
  std::vector<double> E_;  // percent; the rates of one volume are contiguous
};

// `count` values from `first` to `last`, each the same multiple of the one before.
std::vector<double> GeometricSteps(double first, double last, std::size_t count);

}  // namespace orvik
