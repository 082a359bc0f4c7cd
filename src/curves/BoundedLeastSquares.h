// Least squares in four unknowns under linear inequalities.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace orvik {

// Minimises the weighted sum of (a.x - value)^2 over all targets, subject to a.x >= b for every
// requirement.
class BoundedLeastSquares {
 public:
  static constexpr std::size_t kUnknowns = 4;
  using Vector = std::array<double, kUnknowns>;

  void AddTarget(const Vector& a, double value, double weight);

  // Requires a not to be zero.
  void Require(const Vector& a, double b);

  // The one minimum. Nothing where the requirements contradict each other or the targets do not
  // determine all unknowns.
  //
  // In coordinates in which the sum of squares is a squared distance this is the point of the
  // allowed region nearest to the unconstrained minimum. Found by the dual method of Goldfarb and
  // Idnani (Mathematical Programming 27, 1983): starting at the unconstrained minimum, add the
  // requirement that is violated most, and drop those that no longer bind. Exact up to rounding.
  std::optional<Vector> Solve() const;

 private:
  struct Requirement {
    Vector a;
    double b;
  };
  std::array<Vector, kUnknowns> normal_{};  // matrix of the normal equations
  Vector right_{};                          // their right-hand side
  std::vector<Requirement> requirements_;
};

}  // namespace orvik
