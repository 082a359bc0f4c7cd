#include <gtest/gtest.h>

#include "base/RuntimeErrors.h"
#include "engine/PlotGeometry.h"

namespace orvik {
namespace {

// 0...8 inches over columns 100...500 (50 pixels an inch), 0...0.5 in/day over rows 300...50 (500
// pixels an in/day).
const PlotGeometry kGeometry({0, 8, 0, 0.5}, {100, 500, 50, 300});

TEST(PlotGeometry, MapsTheWindowOntoTheFrame) {
  EXPECT_EQ(kGeometry.XPlotToXFrame(0), 100);
  EXPECT_EQ(kGeometry.XPlotToXFrame(8), 500);
  EXPECT_EQ(kGeometry.YPlotToYFrame(0), 300);
  EXPECT_EQ(kGeometry.YPlotToYFrame(0.5), 50);
}

TEST(PlotGeometry, MapsByHandCalculatedPixels) {
  EXPECT_EQ(kGeometry.XPlotToXFrame(3), 250);
  EXPECT_EQ(kGeometry.XPlotToXFrame(-1), 50);      // left of the frame
  EXPECT_EQ(kGeometry.YPlotToYFrame(0.125), 238);  // 300 - 62.5 = 237.5: to the even neighbour
  EXPECT_EQ(kGeometry.YPlotToYFrame(0.2), 200);
}

TEST(PlotGeometry, RoundsHalfPixelsToTheEvenNeighbour) {
  // One pixel an inch and an offset of 0: x + 0.5 falls exactly between two pixels.
  const PlotGeometry unit({0, 16, 0, 16}, {0, 16, 0, 16});
  EXPECT_EQ(unit.XPlotToXFrame(2.5), 2);
  EXPECT_EQ(unit.XPlotToXFrame(3.5), 4);
  EXPECT_EQ(unit.XPlotToXFrame(-0.5), 0);
  EXPECT_EQ(unit.XPlotToXFrame(-1.5), -2);
  EXPECT_EQ(unit.YPlotToYFrame(13.5), 2);  // row 2.5
  EXPECT_EQ(unit.YPlotToYFrame(12.5), 4);  // row 3.5
}

TEST(PlotGeometry, MapsBackWithoutRounding) {
  EXPECT_DOUBLE_EQ(kGeometry.XFrameToXPlot(250), 3);
  EXPECT_DOUBLE_EQ(kGeometry.XFrameToXPlot(101), 0.02);
  EXPECT_DOUBLE_EQ(kGeometry.YFrameToYPlot(200), 0.2);
  EXPECT_DOUBLE_EQ(kGeometry.YFrameToYPlot(299), 0.002);
}

TEST(PlotGeometry, APixelThereAndBackIsTheSamePixel) {
  for (std::int16_t X = 100; X <= 500; ++X) {
    EXPECT_EQ(kGeometry.XPlotToXFrame(kGeometry.XFrameToXPlot(X)), X);
  }
  for (std::int16_t Y = 50; Y <= 300; ++Y) {
    EXPECT_EQ(kGeometry.YPlotToYFrame(kGeometry.YFrameToYPlot(Y)), Y);
  }
}

TEST(PlotGeometry, AValueThereAndBackIsWithinHalfAPixel) {
  for (double x = 0; x <= 8; x += 0.0137) {
    EXPECT_NEAR(kGeometry.XFrameToXPlot(kGeometry.XPlotToXFrame(x)), x, 0.01 + 1e-12);
  }
  for (double y = 0; y <= 0.5; y += 0.00137) {
    EXPECT_NEAR(kGeometry.YFrameToYPlot(kGeometry.YPlotToYFrame(y)), y, 0.001 + 1e-12);
  }
}

TEST(PlotGeometry, BeyondSixteenBitsIsAnOverflow) {
  EXPECT_EQ(kGeometry.XPlotToXFrame(653.34), 32767);
  EXPECT_THROW(kGeometry.XPlotToXFrame(653.36), OverflowError);
  EXPECT_THROW(kGeometry.YPlotToYFrame(1e9), OverflowError);
}

TEST(PlotGeometry, WithoutExtentIsADivisionByZero) {
  const PlotGeometry flat({3, 3, 1, 1}, {5, 5, 7, 7});
  EXPECT_THROW(flat.XPlotToXFrame(3), DivisionByZeroError);
  EXPECT_THROW(flat.YPlotToYFrame(1), DivisionByZeroError);
  EXPECT_THROW(flat.XFrameToXPlot(5), DivisionByZeroError);
  EXPECT_THROW(flat.YFrameToYPlot(7), DivisionByZeroError);
}

TEST(IsPointInFrame, CountsTheFrameLines) {
  EXPECT_TRUE(kGeometry.IsPointInFrame(100, 300));
  EXPECT_TRUE(kGeometry.IsPointInFrame(500, 50));
  EXPECT_TRUE(kGeometry.IsPointInFrame(100, 200));  // the left line
  EXPECT_TRUE(kGeometry.IsPointInFrame(300, 300));  // the bottom line
  EXPECT_FALSE(kGeometry.IsPointInFrame(99, 200));
  EXPECT_FALSE(kGeometry.IsPointInFrame(501, 200));
  EXPECT_FALSE(kGeometry.IsPointInFrame(300, 49));
  EXPECT_FALSE(kGeometry.IsPointInFrame(300, 301));
}

}  // namespace
}  // namespace orvik
