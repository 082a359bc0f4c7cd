// What is left of a line where captions lie on it.
#include <gmock/gmock.h>

#include "chart/CurvePixels.h"

namespace orvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Line = std::vector<Point>;

std::vector<Line> Outside(const Line& line, const std::vector<Area>& areas) {
  return PiecesOutside(line, areas);
}

TEST(PiecesOutside, WithoutAreasTheLineIsWhole) {
  const Line line{{0, 0}, {10, 5}, {20, 5}};
  EXPECT_THAT(Outside(line, {}), ElementsAre(line));
  EXPECT_THAT(Outside(line, {{0, 10, 20, 20}}), ElementsAre(line)) << "an area beside it";
}

TEST(PiecesOutside, AnAreaOnTheLineBreaksIt) {
  EXPECT_THAT(Outside({{0, 0}, {100, 0}}, {{40, -5, 60, 5}}),
              ElementsAre(Line{{0, 0}, {40, 0}}, Line{{60, 0}, {100, 0}}));
  EXPECT_THAT(Outside({{0, 0}, {0, 100}}, {{-5, 40, 5, 60}}),
              ElementsAre(Line{{0, 0}, {0, 40}}, Line{{0, 60}, {0, 100}}));
  EXPECT_THAT(Outside({{0, 0}, {100, 100}}, {{20, 10, 60, 50}}),
              ElementsAre(Line{{0, 0}, {20, 20}}, Line{{50, 50}, {100, 100}}));
}

TEST(PiecesOutside, CornersInTheAreaGoWithIt) {
  EXPECT_THAT(Outside({{0, 0}, {50, 0}, {52, 0}, {100, 0}}, {{40, -5, 60, 5}}),
              ElementsAre(Line{{0, 0}, {40, 0}}, Line{{60, 0}, {100, 0}}));
}

TEST(PiecesOutside, SeveralAreasBreakItSeveralTimesAlsoWhereTheyOverlap) {
  EXPECT_THAT(Outside({{0, 0}, {100, 0}}, {{70, -1, 80, 1}, {10, -1, 30, 1}, {20, -1, 40, 1}}),
              ElementsAre(Line{{0, 0}, {10, 0}}, Line{{40, 0}, {70, 0}}, Line{{80, 0}, {100, 0}}));
}

TEST(PiecesOutside, ALineInTheAreaLeavesNothing) {
  EXPECT_THAT(Outside({{10, 10}, {20, 20}}, {{0, 0, 100, 100}}), IsEmpty());
}

TEST(PiecesOutside, OneThatBeginsOrEndsInTheAreaKeepsTheRest) {
  EXPECT_THAT(Outside({{50, 0}, {100, 0}}, {{40, -5, 60, 5}}),
              ElementsAre(Line{{60, 0}, {100, 0}}));
  EXPECT_THAT(Outside({{0, 0}, {50, 0}}, {{40, -5, 60, 5}}), ElementsAre(Line{{0, 0}, {40, 0}}));
}

TEST(PiecesOutside, OfNoLineIsNothing) {
  EXPECT_THAT(Outside({}, {}), IsEmpty());
  EXPECT_THAT(Outside({{1, 1}}, {}), IsEmpty());
}

}  // namespace
}  // namespace orvik
