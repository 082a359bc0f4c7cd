#include <gtest/gtest.h>

#include <cmath>

#include "base/Rounding.h"
#include "engine/CurvePolygon.h"
#include "engine/EfficiencyCurve.h"

namespace orvik {
namespace {

// One pixel per unit, y upwards turned downwards.
class UnitMapping final : public PlotToFrame {
 public:
  std::int16_t XPlotToXFrame(double x) const override { return ToInt16(x); }
  std::int16_t YPlotToYFrame(double y) const override { return ToInt16(-y); }
};

EfficiencyCurve Through(std::vector<double> V, std::vector<double> R) {
  EfficiencyCurve curve;
  curve.V = std::move(V);
  curve.R = std::move(R);
  curve.NumPoints = static_cast<std::int16_t>(curve.V.size());
  return curve;
}

using Pixels = std::vector<std::int16_t>;

TEST(FindPolygon, GoesAlongTheFirstCurveAndBackAlongTheSecond) {
  const auto polygon = FindPolygonInPlotCoordinates(Through({0, 10}, {0, 0}),
                                                    Through({0, 10}, {5, 5}), UnitMapping());
  EXPECT_EQ(polygon.x, (Pixels{0, 10, 10, 0, 0}));
  EXPECT_EQ(polygon.y, (Pixels{0, 0, -5, -5, 0}));
}

TEST(FindPolygon, LeavesOutAPointOnThePixelOfTheOneBefore) {
  const auto polygon = FindPolygonInPlotCoordinates(Through({0, 0.2, 10}, {0, 0.3, 0}),
                                                    Through({10}, {5}), UnitMapping());
  EXPECT_EQ(polygon.x, (Pixels{0, 10, 10, 0}));
  EXPECT_EQ(polygon.y, (Pixels{0, 0, -5, 0}));
}

TEST(FindPolygon, IsEmptyWhereACurveHasNoPoints) {
  EXPECT_EQ(FindPolygonInPlotCoordinates(Through({}, {}), Through({1}, {1}), UnitMapping()).Count(),
            0U);
  EXPECT_EQ(FindPolygonInPlotCoordinates(Through({1}, {1}), Through({}, {}), UnitMapping()).Count(),
            0U);
}

TEST(FindPolygon, LeavesASinglePixelUnclosed) {
  const auto polygon =
      FindPolygonInPlotCoordinates(Through({3}, {4}), Through({3}, {4}), UnitMapping());
  EXPECT_EQ(polygon.x, (Pixels{3}));
  EXPECT_EQ(polygon.y, (Pixels{-4}));
}

const FramePolygon kSquare{{0, 10, 10, 0, 0}, {0, 0, 10, 10, 0}};

TEST(IsPointInsidePolygon, FindsTheInsideOfASquare) {
  EXPECT_TRUE(IsPointInsidePolygon(5, 5, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(-1, 5, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(11, 5, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(5, -1, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(5, 11, kSquare));
}

TEST(IsPointInsidePolygon, TreatsEdgesAsHalfOpenInY) {
  // The ray goes to the right and meets each edge with lower end <= Y < upper end. At X = 0 it
  // meets both sides of the square, at X = 1 only the right one, at X = 10 (on the right side) that
  // one too.
  EXPECT_TRUE(IsPointInsidePolygon(5, 0, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(5, 10, kSquare));
  EXPECT_FALSE(IsPointInsidePolygon(0, 5, kSquare));
  EXPECT_TRUE(IsPointInsidePolygon(1, 5, kSquare));
  EXPECT_TRUE(IsPointInsidePolygon(10, 5, kSquare));
}

TEST(IsPointInsidePolygon, CountsAVertexOnce) {
  // The ray through the middle vertex of a diamond.
  const FramePolygon diamond{{10, 20, 10, 0, 10}, {0, 10, 20, 10, 0}};
  EXPECT_TRUE(IsPointInsidePolygon(5, 10, diamond));
  EXPECT_FALSE(IsPointInsidePolygon(-5, 10, diamond));
  EXPECT_FALSE(IsPointInsidePolygon(21, 10, diamond));
}

TEST(IsPointInsidePolygon, CountsAPointOnASlantedEdgeAndDoesNotRoundWhereItCrosses) {
  // The right edge from (10, 0) to (14, 2) passes row 1 at 12; the one from (-3, 0) to (0, 2) at
  // -1.5.
  const FramePolygon slanted{{0, 10, 14, 0, 0}, {0, 0, 2, 2, 0}};
  EXPECT_TRUE(IsPointInsidePolygon(12, 1, slanted));
  EXPECT_FALSE(IsPointInsidePolygon(13, 1, slanted));
  const FramePolygon left{{-9, -3, 0, -9, -9}, {0, 0, 2, 2, 0}};
  EXPECT_TRUE(IsPointInsidePolygon(-2, 1, left));
  EXPECT_FALSE(IsPointInsidePolygon(-1, 1, left));
}

TEST(IsPointInsidePolygon, AgreesWithTheWindingNumberOnARandomPolygon) {
  // An independent method: the angles under which the edges are seen add up to a full turn inside
  // and to nothing outside.
  const FramePolygon polygon{{0, 40, 70, 90, 61, 30, 10, 0}, {50, 10, 30, 0, 90, 60, 95, 50}};
  int inside = 0;
  for (int x = 1; x < 100; x += 7) {
    for (int y = 3; y < 100; y += 7) {
      double angle = 0;
      for (std::size_t k = 0; k + 1 < polygon.Count(); ++k) {
        const double ax = polygon.x[k] - x;
        const double ay = polygon.y[k] - y;
        const double bx = polygon.x[k + 1] - x;
        const double by = polygon.y[k + 1] - y;
        angle += std::atan2(ax * by - ay * bx, ax * bx + ay * by);
      }
      const bool wound = std::fabs(angle) > 3;
      inside += wound ? 1 : 0;
      EXPECT_EQ(
          IsPointInsidePolygon(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), polygon),
          wound)
          << x << ", " << y;
    }
  }
  EXPECT_GT(inside, 20);
}

TEST(IsPointInsidePolygon, WorksAtTheEndsOfSixteenBits) {
  const FramePolygon all{{-32768, 32767, 32767, -32768, -32768},
                         {-32768, -32768, 32767, 32767, -32768}};
  EXPECT_TRUE(IsPointInsidePolygon(0, 0, all));
  EXPECT_TRUE(IsPointInsidePolygon(32767, 32766, all));
}

}  // namespace
}  // namespace orvik
