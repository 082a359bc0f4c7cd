#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "curves/BoundedLeastSquares.h"

namespace orvik {
namespace {

using Vector = BoundedLeastSquares::Vector;

// The nearest point to `target`, as a plain distance.
BoundedLeastSquares NearestTo(const Vector& target) {
  BoundedLeastSquares problem;
  for (std::size_t i = 0; i < 4; ++i) {
    Vector axis{};
    axis[i] = 1;
    problem.AddTarget(axis, target[i], 1);
  }
  return problem;
}

void ExpectNear(const std::optional<Vector>& x, const Vector& expected, double tolerance = 1e-9) {
  ASSERT_TRUE(x);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR((*x)[i], expected[i], tolerance) << i;
}

TEST(BoundedLeastSquares, WithoutRequirementsIsTheUnconstrainedMinimum) {
  ExpectNear(NearestTo({1, -2, 3, 4}).Solve(), {1, -2, 3, 4});
}

TEST(BoundedLeastSquares, WeighsTargetsThatDisagree) {
  BoundedLeastSquares problem = NearestTo({0, 0, 0, 0});
  problem.AddTarget({1, 0, 0, 0}, 4, 3);  // 0 with weight 1, 4 with weight 3
  ExpectNear(problem.Solve(), {3, 0, 0, 0});
}

TEST(BoundedLeastSquares, GoesToTheNearestPointOfACorner) {
  BoundedLeastSquares problem = NearestTo({0, 0, 0, 0});
  problem.Require({1, 0, 0, 0}, 1);
  problem.Require({0, 2, 0, 0}, 4);
  problem.Require({1, 1, 0, 0}, -9);  // holds anyway
  ExpectNear(problem.Solve(), {1, 2, 0, 0});
}

TEST(BoundedLeastSquares, DropsARequirementThatAnotherReplaces) {
  // x >= 1 is broken most and comes in first; x + y >= 4 then carries the point beyond it.
  BoundedLeastSquares problem = NearestTo({-5, 5, 0, 0});
  problem.Require({1, 0, 0, 0}, 1);
  problem.Require({1, 1, 0, 0}, 12);
  ExpectNear(problem.Solve(), {1, 11, 0, 0});
}

TEST(BoundedLeastSquares, HasNoSolutionWhereRequirementsContradictEachOther) {
  BoundedLeastSquares problem = NearestTo({0, 0, 0, 0});
  problem.Require({1, 1, 0, 0}, 1);
  problem.Require({-1, -1, 0, 0}, 1);
  EXPECT_FALSE(problem.Solve());
}

TEST(BoundedLeastSquares, HasNoSolutionWhereTargetsLeaveAnUnknownOpen) {
  BoundedLeastSquares problem;
  problem.AddTarget({1, 0, 0, 0}, 1, 1);
  EXPECT_FALSE(problem.Solve());
}

// Random problems against the conditions that only the minimum fulfils: it obeys all requirements,
// and no small step that obeys them too is nearer.
TEST(BoundedLeastSquares, NoAllowedPointIsNearer) {
  std::uint64_t state = 99;
  const auto random = [&] {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state >> 11U) / 4503599627370496.0 - 1;  // -1...1
  };
  const auto randomVector = [&] { return Vector{random(), random(), random(), random()}; };
  int held = 0;
  for (int trial = 0; trial < 200; ++trial) {
    const Vector target = randomVector();
    BoundedLeastSquares problem = NearestTo(target);
    std::vector<std::pair<Vector, double>> requirements;
    requirements.reserve(40);
    for (int i = 0; i < 40; ++i) requirements.emplace_back(randomVector(), 0.15 * random() - 0.16);
    for (const auto& [a, b] : requirements) problem.Require(a, b);
    const auto isAllowed = [&](const Vector& x, double slack) {
      for (const auto& [a, b] : requirements) {
        if (a[0] * x[0] + a[1] * x[1] + a[2] * x[2] + a[3] * x[3] < b - slack) return false;
      }
      return true;
    };
    const auto distance = [&](const Vector& x) {
      double sum = 0;
      for (std::size_t i = 0; i < 4; ++i) sum += (x[i] - target[i]) * (x[i] - target[i]);
      return sum;
    };
    const auto x = problem.Solve();
    ASSERT_TRUE(x) << trial;  // the origin is allowed
    held += distance(*x) > 1e-9 ? 1 : 0;
    EXPECT_TRUE(isAllowed(*x, 1e-8)) << trial;
    for (int step = 0; step < 2000; ++step) {
      Vector near = *x;
      const double size = std::pow(10.0, -0.5 - (step % 5));
      for (double& value : near) value += size * random();
      if (isAllowed(near, 0)) {
        EXPECT_GE(distance(near), distance(*x) - 1e-8) << trial;
      }
    }
  }
  EXPECT_GT(held, 50);  // the requirements mattered
}

}  // namespace
}  // namespace orvik
