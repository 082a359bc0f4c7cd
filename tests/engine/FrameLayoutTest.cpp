// The frame in the control, by hand: with 0...0.4 in/day the bands above, in and below the frame
// share the usable height as 1.01 x 0.01 : 0.4 : 1.2 x 0.01 + 0.008, that is 0.0101 : 0.4 : 0.02 of
// 0.4301.
#include <gtest/gtest.h>

#include "engine/PlotGeometry.h"

namespace orvik {
namespace {

const clsPlotWindow kWindow{0, 7, 0, 0.4};

FrameLayout Layout(int width, int height) {
  return LayoutFrame(width, height, kWindow, LayoutHeights());
}

TEST(LayoutFrame, IsLimitedByTheHeightInAWideControl) {
  // 960 x 640 leaves 920 x 600. Frame height 600 x 0.4 / 0.4301 = 558.01, width 744.02, free width
  // 175.98.
  const FrameLayout layout = Layout(960, 640);
  EXPECT_EQ(layout.frame.Left, 108);    // 20 + 87.99
  EXPECT_EQ(layout.frame.Right, 852);   // 107.99 + 744.02
  EXPECT_EQ(layout.frame.Top, 34);      // 20 + 600 x 0.0101 / 0.4301 = 34.09
  EXPECT_EQ(layout.frame.Bottom, 592);  // 34.09 + 558.01
}

TEST(LayoutFrame, LabelsHaveTheHeightThatCurveSetsPlaceThemFor) {
  EXPECT_EQ(LayoutHeights().label, 0.008F);
  EXPECT_EQ(kLabelHeight, 0.008);
}

TEST(LayoutFrame, CountsTheBandAboveWithItsOwnFactor) {
  // 2250 x 1500 leaves 2210 x 1460. Frame height 1460 x 0.4 / 0.4301 = 1357.82, width 1810.43; the
  // top is 20 + 1460 x 0.0101 / 0.4301 = 54.29 (a factor of 1.02 would give 54.62).
  EXPECT_EQ(Layout(2250, 1500).frame, (clsRectangle_Integer{220, 2030, 54, 1412}));
}

TEST(LayoutFrame, IsLimitedByTheWidthInATallControl) {
  // 340 x 640 leaves 300 x 600. Frame 300 x 225; bands 225 x 0.0101 / 0.4 = 5.68 above and 11.25
  // below; free height 358.07.
  const FrameLayout layout = Layout(340, 640);
  EXPECT_EQ(layout.frame.Left, 20);
  EXPECT_EQ(layout.frame.Right, 320);
  EXPECT_EQ(layout.frame.Top, 205);     // 20 + 179.03 + 5.68 = 204.72
  EXPECT_EQ(layout.frame.Bottom, 430);  // + 225 = 429.72
}

TEST(LayoutFrame, BandsShareTheFramesColumnsOrRows) {
  const FrameLayout layout = Layout(960, 640);
  for (const auto& band : {layout.title, layout.horizontalAxis}) {
    EXPECT_EQ(band.Left, layout.frame.Left);
    EXPECT_EQ(band.Right, layout.frame.Right);
  }
  EXPECT_EQ(layout.title.Bottom, layout.frame.Top);
  EXPECT_EQ(layout.horizontalAxis.Bottom, 620);  // the bands fill the usable height
  EXPECT_EQ(layout.verticalAxis.Top, layout.frame.Top);
  EXPECT_EQ(layout.verticalAxis.Bottom, layout.frame.Bottom);
}

// 558.01 pixels for 0.4 in/day: a title is 13.95 pixels high, a label 11.16.
TEST(LayoutFrame, BandsBeginOffTheFrame) {
  const FrameLayout layout = Layout(960, 640);
  EXPECT_EQ(layout.title.Top, 17);            // a quarter of a title above the usable 20: 16.51
  EXPECT_EQ(layout.horizontalAxis.Top, 593);  // the row under the frame's line
  EXPECT_EQ(layout.verticalAxis.Right, 104);  // 0.4 of a label off column 108: 103.5, to even
}

TEST(LayoutFrame, BandsStayWhereTheFrameLeavesNoRoom) {
  const FrameLayout layout = Layout(340, 640);
  EXPECT_EQ(layout.frame.Left, 20);
  EXPECT_LE(layout.verticalAxis.Left, layout.verticalAxis.Right);
}

TEST(LayoutFrame, KeepsFourToThreeAndTheMarginsAtEverySize) {
  for (int width = 120; width <= 3840; width += 93) {
    for (int height = 90; height <= 2160; height += 71) {
      const clsRectangle_Integer frame = Layout(width, height).frame;
      const double frameWidth = frame.Right - frame.Left;
      const double frameHeight = frame.Bottom - frame.Top;
      EXPECT_NEAR(frameWidth, frameHeight * 4 / 3, 2) << width << " x " << height;
      EXPECT_GE(frame.Left, 20);
      EXPECT_LE(frame.Right, width - 20);
      EXPECT_GE(frame.Top, 20);
      EXPECT_LE(frame.Bottom, height - 20);
      EXPECT_NEAR(frame.Left + frame.Right, width, 2);  // centred
    }
  }
}

TEST(LayoutFrame, ATinyControlGetsATinyFrame) {
  for (const int size : {-5, 0, 1, 40}) {
    const clsRectangle_Integer frame = Layout(size, size).frame;
    EXPECT_LE(frame.Right - frame.Left, 1) << size;
    EXPECT_GE(frame.Right, frame.Left) << size;
    EXPECT_GE(frame.Bottom, frame.Top) << size;
  }
}

}  // namespace
}  // namespace orvik
