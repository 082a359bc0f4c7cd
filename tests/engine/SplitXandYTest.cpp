#include <gtest/gtest.h>

#include "engine/CurveLabel.h"

namespace orvik {
namespace {

TEST(SplitXandY, TakesTwoNumbersJoinedByAComma) {
  struct Case {
    const char* text;
    double x, y;
  };
  const Case cases[] = {{"2.5,0.12", 2.5, 0.12},
                        {"2.5, 0.12", 2.5, 0.12},
                        {" 1 , 2 ", 1, 2},
                        {"-.5,1e-2", -0.5, 0.01}};
  for (const auto& [text, x, y] : cases) {
    double X = 0;
    double Y = 0;
    EXPECT_TRUE(SplitXandY(text, X, Y)) << text;
    EXPECT_EQ(X, x) << text;
    EXPECT_EQ(Y, y) << text;
  }
}

TEST(SplitXandY, RefusesAnythingElse) {
  for (const char* text : {"", "2.5", ",", "2.5,", ",0.12", "a,1", "1;2", "1,2,3", "1,b"}) {
    double X = 0;
    double Y = 0;
    EXPECT_FALSE(SplitXandY(text, X, Y)) << text;
    EXPECT_EQ(Y, 0) << text;
  }
}

TEST(SplitXandY, KeepsXWhenOnlyTheSecondPartFails) {
  double X = 9;
  double Y = 9;
  EXPECT_FALSE(SplitXandY("3,oops", X, Y));
  EXPECT_EQ(X, 3);
  EXPECT_EQ(Y, 9);
}

}  // namespace
}  // namespace orvik
