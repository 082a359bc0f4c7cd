// The whole painting, call by call, and what is left out of it.
#include <algorithm>

#include "InteractiveFixture.h"

namespace orvik {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Log = std::vector<std::string>;

const Log kBorderAt960x640 = {
    "line 0,0 to 959,0 colour 0x80000010 width 1 copy",
    "line 0,0 to 0,639 colour 0x80000010 width 1 copy",
    "line 0,639 to 959,639 colour 0x80000014 width 1 copy",
    "line 959,0 to 959,640 colour 0x80000014 width 1 copy",
    "line 1,1 to 958,1 colour 0x80000015 width 1 copy",
    "line 1,1 to 1,638 colour 0x80000015 width 1 copy",
    "line 1,638 to 958,638 colour 0x80000016 width 1 copy",
    "line 958,1 to 958,639 colour 0x80000016 width 1 copy",
};

class ChartPainting : public ChartFixture {
 protected:
  Log Paint() {
    RecordingSurface surface;
    chart_.Paint(surface);
    return surface.Take();
  }

  static bool HasText(const Log& calls) {
    return std::ranges::any_of(calls, [](const auto& call) { return call.starts_with("text"); });
  }

  static CurveFileText TwoShortCurves() {
    CurveFileText file;
    file.header = {"0", "7", "3.5", "0", "0.4", "0.2"};
    file.curves = {{"50", "3.5", "3.52", "0.1", "0", "0", "0"},
                   {"70", "3.5", "3.52", "0.2", "0", "0", "0"}};
    file.labels = {"  E=50%  ", "1.75,0.3"};
    return file;
  }
};

// Frame 108...852 by 34...592 (see InteractiveFixture.h). A title is 0.01 x 558 / 0.4 = 13.95, so
// 14 pixels high, other text 11.16, so 11, and a tick 6.975, so 7 long. In this surface's font
// "Tampa" is 5 x 7 wide and a number 5 for each character. Columns: V = 3.5 is 480, 1.75 is
// 294, 3.52 is 480 + 0.02 x 744 / 7 = 482.1; rows: R = 0.2 is 313, 0.1 is 452.5 to the even 452,
// 0.3 is 173.5 to 174.
TEST_F(ChartPainting, FollowsItsSequence) {
  Load(TwoShortCurves());
  Log expected = {
      "fill 0,0 to 960,640 colour 0xFFFFFF",
      "text 463,17 \"Tampa\" Arial 14 colour 0x000000",  // 480 - 35 / 2
      "line 108,34 to 852,34 colour 0x000000 width 1 copy",
      "line 852,34 to 852,592 colour 0x000000 width 1 copy",
      "line 852,592 to 108,592 colour 0x000000 width 1 copy",
      "line 108,592 to 108,34 colour 0x000000 width 1 copy",
      "line 480,591 to 480,34 colour 0xE0E0E0 width 1 copy",
      "line 109,313 to 852,313 colour 0xE0E0E0 width 1 copy",
      "line 480,591 to 480,584 colour 0x000000 width 1 copy",
      "line 109,313 to 116,313 colour 0x000000 width 1 copy",
      "text 108,593 \"0\" Arial 11 colour 0x000000",    // begins at its column
      "text 473,593 \"3.5\" Arial 11 colour 0x000000",  // 480 - 15 / 2
      "text 847,593 \"7\" Arial 11 colour 0x000000",    // ends at its column
      "text 345,606 \"V, Reuse Volume (inches on equivalent impervious area)\" Arial 11 colour "
      "0x000000",                                      // 480 - 54 x 5 / 2; below 593 + 11 + 2
      "text 99,587 \"0\" Arial 11 colour 0x000000",    // 104 - 5; 592 - 11 / 2
      "text 89,308 \"0.2\" Arial 11 colour 0x000000",  // 104 - 15; 313 - 5
      "text 89,29 \"0.4\" Arial 11 colour 0x000000",
      "text 73,433 \"R, Reuse Rate (in/day on equiv. impervious area)\" Arial 11 angle 900 colour "
      "0x000000",  // 89 - 5 - 11; it begins at 313 + 48 x 5 / 2
      "clip 108,34 to 853,593",
      "polyline 480,452 481,452 482,452 colour 0x7A2E00 width 2 copy",
      "polyline 480,313 481,313 482,313 colour 0x0060D8 width 2 copy",
      "unclip",
      "fill 478,450 to 483,455 colour 0x7A2E00",
      "fill 480,450 to 485,455 colour 0x7A2E00",
      "fill 478,311 to 483,316 colour 0x0060D8",
      "fill 480,311 to 485,316 colour 0x0060D8",
      "fill 294,175 to 319,185 colour 0xFFFFFF",
      "text 294,174 \"E=50%\" Arial 11 colour 0x000000",
  };
  expected.insert(expected.end(), kBorderAt960x640.begin(), kBorderAt960x640.end());
  EXPECT_THAT(Paint(), ElementsAreArray(expected));
}

TEST_F(ChartPainting, WithoutCurvesOnlyTheBorderIsDrawn) {
  Log expected = {"fill 0,0 to 960,640 colour 0xFFFFFF"};
  expected.insert(expected.end(), kBorderAt960x640.begin(), kBorderAt960x640.end());
  EXPECT_EQ(Paint(), expected);
  Load(TwoShortCurves());
  chart_.Clear();
  EXPECT_EQ(Paint(), expected);
}

TEST_F(ChartPainting, OutsideUserModeOnlyTheBackgroundAndTheBorderAreDrawn) {
  Load(TwoShortCurves());
  chart_.UserMode(false);
  EXPECT_EQ(Paint().size(), 9U);
  chart_.BackgroundPicture(Picture{{2, 1}, {0x112233, 0x445566}});
  EXPECT_EQ(Paint()[1], "picture 2x1 in 0,0 to 960,640");
  EXPECT_EQ(Paint().size(), 10U);
  chart_.UserMode(true);
  EXPECT_GT(Paint().size(), 30U);
}

TEST_F(ChartPainting, TheBackgroundLiesUnderAChartThatIsNotInteractive) {
  Load(TwoShortCurves());
  chart_.BackgroundPicture(Picture{{2, 1}, {0x112233, 0x445566}});
  EXPECT_EQ(Paint()[1], "picture 2x1 in 0,0 to 960,640");
  chart_.InteractiveMode(true);
  EXPECT_THAT(Paint(), Not(Contains(StartsWith("picture"))));
}

// The frame's height is 4/3.4301... of what 600 is to 558: a label of 0.008 is 6 pixels from a
// frame of 275 on (5.5 to the even 6) and 5 below it; then there is no text, and the curves stay.
TEST_F(ChartPainting, ShrinkingRemovesTheTextAndKeepsTheCurves) {
  Load(TwoShortCurves());
  bool hadText = true;
  for (int height = 640; height >= 90; height -= 5) {
    chart_.Resize(height * 3 / 2, height);
    const Log calls = Paint();
    const int frame = chart_.Layout().frame.Bottom - chart_.Layout().frame.Top;
    EXPECT_EQ(
        std::ranges::any_of(
            calls, [](const auto& call) { return call.find("V, Reuse") != std::string::npos; }),
        frame >= 276)
        << height << " " << frame;
    if (frame < 220) {
      EXPECT_FALSE(HasText(calls)) << "the title's 0.01 are 5.5 pixels at 220";
    }
    EXPECT_THAT(calls, Contains(HasSubstr("colour 0x7A2E00"))) << height;
    hadText = HasText(calls);
  }
  EXPECT_FALSE(hadText);
}

TEST_F(ChartPainting, ATinyControlIsPaintedToo) {
  Load(TwoShortCurves());
  for (const int size : {0, 1, 2, 3, 4, 10, 41}) {
    chart_.Resize(size, size);
    EXPECT_NO_THROW(Paint()) << size;
    EXPECT_FALSE(HasText(Paint())) << size;
  }
}

TEST_F(ChartPainting, ADamagedIntervalLeavesOutTicksAndNumbers) {
  for (const char* step : {"0", "-1", "1e-12", "1e-300", "abc"}) {
    CurveFileText file = TwoShortCurves();
    file.header[2] = step;
    file.header[5] = step;
    Load(file);
    const Log calls = Paint();
    EXPECT_THAT(calls, Not(Contains(HasSubstr("0xE0E0E0")))) << step;
    EXPECT_THAT(calls, Not(Contains(HasSubstr("\"0\"")))) << step;
    EXPECT_THAT(calls, Contains(HasSubstr("\"V, Reuse Volume"))) << step;
  }
}

TEST_F(ChartPainting, ACurveBeyondThePixelsIsLeftOutAndTheOthersStay) {
  CurveFileText file = TwoShortCurves();
  file.curves[0] = {"50", "0.001", "7", "0.2", "0", "0", "-1000"};  // R = 329,500 at VStart
  Load(file);
  const Log calls = Paint();
  EXPECT_THAT(calls, Not(Contains(HasSubstr("0x7A2E00"))));
  EXPECT_THAT(calls, Contains(HasSubstr("polyline 480,313")));
}

TEST_F(ChartPainting, NoLabelIsDrawnWhereTheFileHasNone) {
  CurveFileText file = TwoShortCurves();
  file.labels.clear();
  Load(file);
  EXPECT_THAT(Paint(), Not(Contains(HasSubstr("E=50%"))));
  file.labels = {"   ", "1.75,0.3"};
  Load(file);
  EXPECT_THAT(Paint(), Not(Contains(StartsWith("text 294,174"))));
}

// A label that ended beyond the frame's right line would cut it.
TEST_F(ChartPainting, ALabelIsKeptOffTheFramesLines) {
  CurveFileText file = TwoShortCurves();
  file.labels = {"E=50%", "6.9,0.005"};
  Load(file);
  EXPECT_THAT(Paint(), Contains("text 825,579 \"E=50%\" Arial 11 colour 0x000000"));
}

TEST_F(ChartPainting, ALabelFarOffTheChartIsLeftOut) {
  CurveFileText file = TwoShortCurves();
  for (const char* place : {"1e9,0.1", "3,-1e9", "1000,0.1", "-1.2,0.1"}) {
    file.labels = {"E=50%", place};
    Load(file);
    EXPECT_THAT(Paint(), Not(Contains(HasSubstr("\"E=50%\"")))) << place;
  }
}

TEST_F(ChartPainting, RefreshAsksTheWindowForAPainting) {
  RecordingHost host;
  chart_.AttachHost(&host);
  chart_.Refresh();
  EXPECT_THAT(host.Take(), ElementsAre("invalidate"));
  chart_.AttachHost(nullptr);
}

TEST_F(ChartPainting, ChangesNothingOfTheChart) {
  Load(LogarithmicCurves());
  std::string E;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.12", "3", E));
  const Log first = Paint();
  EXPECT_EQ(Paint(), first);
  EXPECT_EQ(chart_.Point().R, 0.12);
  EXPECT_EQ(chart_.ErrMsg(), "Success");
}

}  // namespace
}  // namespace orvik
