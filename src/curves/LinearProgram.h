// A linear program in a few unknowns with many constraints: minimise c.x subject to a.x >= b for
// every constraint, x free.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace orvik {

class LinearProgram {
 public:
  static constexpr std::size_t kUnknowns = 5;
  using Vector = std::array<double, kUnknowns>;

  // Requires a not to be zero. Constraints are scaled to a of length 1, so that all tolerances mean
  // the same.
  void Require(const Vector& a, double b);

  // The minimum. Nothing where the constraints contradict each other, or the minimum lies beyond
  // 1E+4 in one of the unknowns. Requires c >= 0 in every element.
  //
  // Dual simplex method on the constraints that are active at x: every step takes the constraint
  // that is violated most into the active five and drops the one that keeps the multipliers
  // positive. Exact up to rounding: the answer is the solution of five equations.
  std::optional<Vector> Minimise(const Vector& c) const;

 private:
  struct Constraint {
    Vector a;
    double b;
  };
  std::vector<Constraint> constraints_;
};

}  // namespace orvik
