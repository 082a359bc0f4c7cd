#include <gmock/gmock.h>

#include <algorithm>
#include <array>

#include "platform/cairo/PixelLines.h"

namespace orvik {

// For the messages of failing tests.
void PrintTo(const Point& point, std::ostream* out) {
  *out << point.x << "," << point.y;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Points = std::vector<Point>;

Points Line(Point from, Point to, int width = 1) {
  return PixelsOfLine(std::array{from, to}, width);
}

TEST(PixelsOfLine, LeavesOutTheLastPoint) {
  EXPECT_THAT(Line({1, 5}, {4, 5}), ElementsAre(Point{1, 5}, Point{2, 5}, Point{3, 5}));
  EXPECT_THAT(Line({4, 5}, {1, 5}), ElementsAre(Point{2, 5}, Point{3, 5}, Point{4, 5}));
  EXPECT_THAT(Line({2, 7}, {2, 5}), ElementsAre(Point{2, 6}, Point{2, 7}));
  EXPECT_THAT(Line({2, 7}, {2, 7}), IsEmpty());
  EXPECT_THAT(PixelsOfLine(std::array{Point{2, 7}}, 1), IsEmpty());
  EXPECT_THAT(PixelsOfLine({}, 1), IsEmpty());
}

TEST(PixelsOfLine, FollowsASlope) {
  EXPECT_THAT(Line({0, 0}, {4, 2}),
              ElementsAre(Point{0, 0}, Point{1, 1}, Point{2, 1}, Point{3, 2}));
  EXPECT_THAT(Line({0, 0}, {-3, 3}), ElementsAre(Point{0, 0}, Point{-1, 1}, Point{-2, 2}));
}

TEST(PixelsOfLine, AClosedFigureHasEachOfItsPixelsOnce) {
  const std::array<Point, 5> box{{{1, 1}, {4, 1}, {4, 4}, {1, 4}, {1, 1}}};
  EXPECT_EQ(PixelsOfLine(box, 1).size(), 12U);
  const std::array<Point, 3> thereAndBack{{{1, 1}, {4, 1}, {1, 1}}};
  EXPECT_EQ(PixelsOfLine(thereAndBack, 1).size(), 4U);
}

TEST(PixelsOfLine, AWidePenIsASquare) {
  EXPECT_THAT(Line({5, 5}, {6, 5}, 2),
              ElementsAre(Point{5, 5}, Point{6, 5}, Point{5, 6}, Point{6, 6}));
  EXPECT_EQ(Line({5, 5}, {15, 5}, 3).size(), 36U);
}

TEST(PixelsOfLine, HoldsForAWholeScreen) {
  const Points line = Line({-32768, -32768}, {32767, 32767});
  EXPECT_EQ(line.size(), 65535U);
  EXPECT_TRUE(std::ranges::all_of(line, [](Point point) { return point.x == point.y; }));
}

TEST(AreaOfStraightLine, IsThatOfTheSamePixels) {
  const std::array<std::pair<Point, Point>, 5> lines{
      {{{1, 5}, {4, 5}}, {{4, 5}, {1, 5}}, {{2, 5}, {2, 9}}, {{2, 9}, {2, 5}}, {{3, 3}, {3, 3}}}};
  for (const auto& [from, to] : lines) {
    const auto area = AreaOfStraightLine(from, to, 1);
    ASSERT_TRUE(area);
    Points filled;
    for (int y = area->top; y < area->bottom; ++y) {
      for (int x = area->left; x < area->right; ++x) filled.push_back({x, y});
    }
    EXPECT_EQ(filled, Line(from, to)) << from.x << "," << from.y;
  }
  EXPECT_FALSE(AreaOfStraightLine({0, 0}, {1, 2}, 1));
}

}  // namespace
}  // namespace orvik
