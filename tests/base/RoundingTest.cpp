#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/Rounding.h"
#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

TEST(RoundHalfToEven, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfToEven(0.5), 0);
  EXPECT_EQ(RoundHalfToEven(1.5), 2);
  EXPECT_EQ(RoundHalfToEven(2.5), 2);
  EXPECT_EQ(RoundHalfToEven(3.5), 4);
  EXPECT_EQ(RoundHalfToEven(-0.5), 0);
  EXPECT_EQ(RoundHalfToEven(-1.5), -2);
  EXPECT_EQ(RoundHalfToEven(-2.5), -2);
}

TEST(RoundHalfToEven, RoundsEverythingElseToTheNearest) {
  EXPECT_EQ(RoundHalfToEven(2.4999999999999996), 2);
  EXPECT_EQ(RoundHalfToEven(2.5000000000000004), 3);
  EXPECT_EQ(RoundHalfToEven(-7.6), -8);
  EXPECT_EQ(RoundHalfToEven(0.49999999999999994), 0);  // floor(x + 0.5) gives 1 here
}

TEST(RoundHalfToEven, LeavesWholeAndHugeNumbersUnchanged) {
  EXPECT_EQ(RoundHalfToEven(-3), -3);
  EXPECT_EQ(RoundHalfToEven(4503599627370497.0), 4503599627370497.0);
  EXPECT_EQ(RoundHalfToEven(1e300), 1e300);
}

TEST(ToInt16, AcceptsTheWholeRangeAndNothingBeyond) {
  EXPECT_EQ(ToInt16(32767.5 - 0.001), 32767);
  EXPECT_EQ(ToInt16(-32768.5), -32768);  // the half goes to the even neighbour
  EXPECT_THROW(ToInt16(32767.5), OverflowError);
  EXPECT_THROW(ToInt16(-32768.6), OverflowError);
  EXPECT_THROW(ToInt16(std::numeric_limits<double>::infinity()), OverflowError);
  EXPECT_THROW(ToInt16(std::nan("")), OverflowError);
}

TEST(ToSingle, KeepsTheNearestSingle) {
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_TRUE(std::isinf(ToSingle(1e39)));
}

}  // namespace
}  // namespace orvik
