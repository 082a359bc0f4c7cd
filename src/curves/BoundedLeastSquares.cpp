#include "curves/BoundedLeastSquares.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvik {
namespace {

using Vector = BoundedLeastSquares::Vector;
constexpr std::size_t N = BoundedLeastSquares::kUnknowns;
using Matrix = std::array<Vector, N>;  // rows

constexpr double kTolerance = 1e-10;  // a requirement violated by less counts as met
constexpr double kSingular = 1e-14;  // of a diagonal element: a pivot that rounding alone can leave
constexpr double kNoShare = 1e-12;   // the coefficient of a normal that does not take part
constexpr double kDependent = 1e-18;  // squared length that is left of a dependent direction
constexpr int kMostExchanges = 1000;  // a dozen is usual
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double Dot(const Vector& a, const Vector& b) {
  double sum = 0;
  for (std::size_t i = 0; i < N; ++i) sum += a[i] * b[i];
  return sum;
}

// The lower triangle C with C C^T = matrix; nothing where the matrix is not positive definite.
std::optional<Matrix> Cholesky(const Matrix& matrix) {
  Matrix C{};
  for (std::size_t i = 0; i < N; ++i) {
    for (std::size_t j = 0; j <= i; ++j) {
      double sum = matrix[i][j];
      for (std::size_t k = 0; k < j; ++k) sum -= C[i][k] * C[j][k];
      if (i != j) {
        C[i][j] = sum / C[j][j];
      } else if (sum > kSingular * matrix[i][i]) {
        C[i][i] = std::sqrt(sum);
      } else {
        return std::nullopt;
      }
    }
  }
  return C;
}

// x with C x = right.
Vector SolveLower(const Matrix& C, Vector right) {
  for (std::size_t i = 0; i < N; ++i) {
    for (std::size_t j = 0; j < i; ++j) right[i] -= C[i][j] * right[j];
    right[i] /= C[i][i];
  }
  return right;
}

// x with C^T x = right.
Vector SolveUpper(const Matrix& C, Vector right) {
  for (std::size_t i = N; i-- > 0;) {
    for (std::size_t j = i + 1; j < N; ++j) right[i] -= C[j][i] * right[j];
    right[i] /= C[i][i];
  }
  return right;
}

// n.y >= b with n of length 1.
struct HalfSpace {
  Vector n;
  double b;
};

// The half spaces on whose boundary the point lies, at most four, with their Lagrange multipliers
// (here called forces).
struct ActiveSet {
  std::vector<const HalfSpace*> spaces;
  std::vector<double> forces;

  void Drop(std::size_t i) {
    spaces.erase(spaces.begin() + static_cast<std::ptrdiff_t>(i));
    forces.erase(forces.begin() + static_cast<std::ptrdiff_t>(i));
  }
};

// A direction, split into a combination of the active normals (r[i] times normal i) and the rest,
// which is orthogonal to all of them.
struct Split {
  std::vector<double> r;
  Vector rest;
};

Split SplitDirection(const Vector& n, const ActiveSet& active) {
  const std::size_t count = active.spaces.size();
  std::vector<Vector> basis;
  std::vector<std::vector<double>> triangle;
  // Modified Gram-Schmidt: normal i is the sum of triangle[i][k] times basis[k].
  for (const HalfSpace* space : active.spaces) {
    Vector v = space->n;
    std::vector<double>& row = triangle.emplace_back();
    for (const Vector& e : basis) {
      row.push_back(Dot(v, e));
      for (std::size_t k = 0; k < N; ++k) v[k] -= row.back() * e[k];
    }
    const double length = std::sqrt(Dot(v, v));
    row.push_back(length);
    for (double& value : v) value /= length;
    basis.push_back(v);
  }
  Split split{std::vector<double>(count), n};
  for (std::size_t i = 0; i < count; ++i) {
    split.r[i] = Dot(split.rest, basis[i]);
    for (std::size_t k = 0; k < N; ++k) split.rest[k] -= split.r[i] * basis[i][k];
  }
  // Back substitution: from coefficients of the basis to those of the normals.
  for (std::size_t i = count; i-- > 0;) {
    split.r[i] /= triangle[i][i];
    for (std::size_t k = 0; k < i; ++k) split.r[k] -= split.r[i] * triangle[i][k];
  }
  return split;
}

// Moves from the unconstrained minimum to the nearest point of the region.
class NearestPoint {
 public:
  NearestPoint(const Vector& start, const std::vector<HalfSpace>& spaces)
      : y_(start), spaces_(spaces) {}

  std::optional<Vector> Find() {
    while (const HalfSpace* space = MostBroken()) {
      double force = 0;
      while (true) {
        if (++steps_ > kMostExchanges) return std::nullopt;
        const Move move = Push(*space, force);
        if (move == Move::Impossible) return std::nullopt;
        if (move == Move::Arrived) break;
      }
    }
    return y_;
  }

 private:
  enum class Move { Arrived, Dropped, Impossible };

  const HalfSpace* MostBroken() const {
    const HalfSpace* broken = nullptr;
    double worst = kTolerance;
    for (const HalfSpace& space : spaces_) {
      const double distance = space.b - Dot(space.n, y_);
      if (distance <= worst) continue;
      worst = distance;
      broken = &space;
    }
    return broken;
  }

  // Moves the point towards the half space until it is on its boundary, or until the force of an
  // active one is used up and that one is dropped. `force` is that of the half space.
  Move Push(const HalfSpace& space, double& force) {
    const Split split = SplitDirection(space.n, active_);
    const double length = Dot(split.rest, split.rest);
    // n.rest = rest.rest, since the rest is n's own orthogonal part: so far to the boundary.
    const double whole = length > kDependent ? (space.b - Dot(space.n, y_)) / length : kInfinity;
    // A step lowers each active force by r[i] times its length: so far until the first is 0.
    double part = kInfinity;
    std::size_t dropped = 0;
    for (std::size_t i = 0; i < split.r.size(); ++i) {
      if (split.r[i] <= kNoShare || active_.forces[i] / split.r[i] >= part) continue;
      part = active_.forces[i] / split.r[i];
      dropped = i;
    }
    const double step = std::min(whole, part);
    if (step == kInfinity) return Move::Impossible;
    if (whole < kInfinity) {
      for (std::size_t k = 0; k < N; ++k) y_[k] += step * split.rest[k];
    }
    force += step;
    for (std::size_t i = 0; i < split.r.size(); ++i) {
      // Never negative by rounding: a force pushes, it does not pull.
      active_.forces[i] = std::max(0.0, active_.forces[i] - step * split.r[i]);
    }
    if (part < whole) {
      active_.Drop(dropped);
      return Move::Dropped;
    }
    active_.spaces.push_back(&space);
    active_.forces.push_back(force);
    return Move::Arrived;
  }

  Vector y_;
  const std::vector<HalfSpace>& spaces_;
  ActiveSet active_;
  int steps_ = 0;
};

}  // namespace

void BoundedLeastSquares::AddTarget(const Vector& a, double value, double weight) {
  for (std::size_t i = 0; i < N; ++i) {
    for (std::size_t j = 0; j < N; ++j) normal_[i][j] += weight * a[i] * a[j];
    right_[i] += weight * a[i] * value;
  }
}

void BoundedLeastSquares::Require(const Vector& a, double b) {
  requirements_.push_back({a, b});
}

std::optional<Vector> BoundedLeastSquares::Solve() const {
  // With normal = C C^T and y = C^T x the sum is |y - y0|^2 plus a constant, where C y0 = right;
  // and a.x >= b is n.y >= b with C n = a.
  const auto C = Cholesky(normal_);
  if (!C) return std::nullopt;
  std::vector<HalfSpace> spaces;
  spaces.reserve(requirements_.size());
  for (const Requirement& requirement : requirements_) {
    HalfSpace space{SolveLower(*C, requirement.a), requirement.b};
    const double length = std::sqrt(Dot(space.n, space.n));
    for (double& value : space.n) value /= length;
    space.b /= length;
    spaces.push_back(space);
  }
  const auto y = NearestPoint(SolveLower(*C, right_), spaces).Find();
  if (!y) return std::nullopt;
  return SolveUpper(*C, *y);
}

}  // namespace orvik
