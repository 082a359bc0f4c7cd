#include "curves/LinearProgram.h"

#include <cmath>
#include <utility>

namespace orvik {
namespace {

using Vector = LinearProgram::Vector;
constexpr std::size_t N = LinearProgram::kUnknowns;
using Matrix = std::array<Vector, N>;  // rows

constexpr double kBox = 1e4;          // the search starts at the corner of a box of this half width
constexpr double kTolerance = 1e-11;  // a constraint violated by less counts as met
constexpr int kMostSteps = 2000;      // a few dozen are usual
constexpr int kStepsBeforeBland = 300;

double Dot(const Vector& a, const Vector& b) {
  double sum = 0;
  for (std::size_t i = 0; i < N; ++i) sum += a[i] * b[i];
  return sum;
}

Matrix Transposed(const Matrix& matrix) {
  Matrix result{};
  for (std::size_t i = 0; i < N; ++i) {
    for (std::size_t j = 0; j < N; ++j) result[j][i] = matrix[i][j];
  }
  return result;
}

// Solves matrix.x = right by elimination with row exchange. Nothing for a singular matrix.
std::optional<Vector> SolveEquations(Matrix matrix, Vector right) {
  for (std::size_t k = 0; k < N; ++k) {
    std::size_t pivot = k;
    for (std::size_t i = k + 1; i < N; ++i) {
      if (std::fabs(matrix[i][k]) > std::fabs(matrix[pivot][k])) pivot = i;
    }
    if (std::fabs(matrix[pivot][k]) < 1e-14) return std::nullopt;
    std::swap(matrix[k], matrix[pivot]);
    std::swap(right[k], right[pivot]);
    for (std::size_t i = k + 1; i < N; ++i) {
      const double factor = matrix[i][k] / matrix[k][k];
      for (std::size_t j = k; j < N; ++j) matrix[i][j] -= factor * matrix[k][j];
      right[i] -= factor * right[k];
    }
  }
  for (std::size_t k = N; k-- > 0;) {
    for (std::size_t j = k + 1; j < N; ++j) right[k] -= matrix[k][j] * right[j];
    right[k] /= matrix[k][k];
  }
  return right;
}

// The five active constraints, their multipliers and the point where they meet.
struct ActiveSet {
  Matrix a{};
  Vector b{};
  Vector multipliers{};
  Vector x{};
};

ActiveSet StartInBoxCorner(const Vector& c) {
  ActiveSet active;
  for (std::size_t i = 0; i < N; ++i) active.a[i][i] = 1;
  active.b.fill(-kBox);
  active.multipliers = c;
  active.x.fill(-kBox);
  return active;
}

// The active constraint that must go for the multipliers to stay positive when a constraint with
// these weights comes in; nothing when there is none, which means that it contradicts the others.
std::optional<std::size_t> FindLeaving(const Vector& multipliers, const Vector& weights) {
  std::optional<std::size_t> leaving;
  double least = 0;
  for (std::size_t i = 0; i < N; ++i) {
    if (weights[i] <= 1e-12) continue;
    const double ratio = multipliers[i] / weights[i];
    if (!leaving || ratio < least) {
      leaving = i;
      least = ratio;
    }
  }
  return leaving;
}

bool Exchange(ActiveSet& active, const Vector& a, double b) {
  const auto weights = SolveEquations(Transposed(active.a), a);
  if (!weights) return false;
  const auto leaving = FindLeaving(active.multipliers, *weights);
  if (!leaving) return false;
  const double step = active.multipliers[*leaving] / (*weights)[*leaving];
  for (std::size_t i = 0; i < N; ++i) active.multipliers[i] -= step * (*weights)[i];
  active.multipliers[*leaving] = step;
  active.a[*leaving] = a;
  active.b[*leaving] = b;
  const auto x = SolveEquations(active.a, active.b);
  if (x) active.x = *x;
  return x.has_value();
}

bool IsInsideBox(const Vector& x) {
  for (const double value : x) {
    if (!(std::fabs(value) < kBox * 0.999)) return false;
  }
  return true;
}

}  // namespace

void LinearProgram::Require(const Vector& a, double b) {
  const double length = std::sqrt(Dot(a, a));
  Constraint constraint{a, b / length};
  for (double& value : constraint.a) value /= length;
  constraints_.push_back(constraint);
}

std::optional<Vector> LinearProgram::Minimise(const Vector& c) const {
  ActiveSet active = StartInBoxCorner(c);
  for (int step = 0; step < kMostSteps; ++step) {
    const Constraint* entering = nullptr;
    double worst = kTolerance;
    for (const Constraint& constraint : constraints_) {
      const double violation = constraint.b - Dot(constraint.a, active.x);
      if (violation <= worst) continue;
      entering = &constraint;
      // Taking the first violated one cannot go round in circles; it is the rule when the faster
      // one has not ended soon.
      if (step >= kStepsBeforeBland) break;
      worst = violation;
    }
    if (entering == nullptr) {
      return IsInsideBox(active.x) ? std::optional(active.x) : std::nullopt;
    }
    if (!Exchange(active, entering->a, entering->b)) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace orvik
