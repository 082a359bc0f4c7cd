// The chart on a printer's page, call by call.
#include <algorithm>

#include "InteractiveFixture.h"
#include "chart/ChartPrinting.h"
#include "platform/recording/RecordingPrinter.h"

namespace orvik {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Log = std::vector<std::string>;

class PrintDesignChart : public ChartFixture {
 protected:
  static CurveFileText TwoShortCurves() {
    CurveFileText file;
    file.header = {"0", "7", "3.5", "0", "0.4", "0.2"};
    file.curves = {{"50", "3.5", "3.52", "0.1", "0", "0", "0"},
                   {"70", "3.5", "3.52", "0.2", "0", "0", "0"}};
    file.labels = {"  E=50%  ", "1.75,0.3"};
    return file;
  }

  // R = 0.2 and R = 0.4 all over the chart, for E = 50 and 70: at R = 0.3, E is 60.
  static CurveFileText WithWideCurves() {
    CurveFileText file = TwoShortCurves();
    file.curves = {{"50", "0.1", "7", "0.2", "0", "0", "0"},
                   {"70", "0.1", "7", "0.4", "0", "0", "0"}};
    file.labels.clear();
    return file;
  }

  Log Print(std::int16_t Left, std::int16_t Top, std::int16_t Right, std::int16_t Bottom) {
    RecordingPrinter printer;
    chart_.PrintDesignChart(printer, Left, Top, Right, Bottom);
    return printer.Take();
  }

  // With the design point at V = 3.5 on a curve of 70 % that has this R everywhere.
  Log PrintAnswerAt(const std::string& R) {
    CurveFileText file = WithWideCurves();
    file.curves[1].A = R;
    Load(file);
    std::string found;
    EXPECT_TRUE(chart_.SetHotspotUsing_EV("70", "3.5", found));
    EXPECT_EQ(found, R);
    return Print(100, 200, 900, 800);
  }

  clsPlotMetrics MetricsIn(const clsRectangle_Integer& target) const {
    return PrintMetrics({chart_.Curves(), chart_.StationName(), chart_.Point()}, target);
  }

  // Place of the first call that begins so; -1 for none.
  static int Place(const Log& calls, std::string_view beginning) {
    const auto found =
        std::ranges::find_if(calls, [&](const auto& c) { return c.starts_with(beginning); });
    return found == calls.end() ? -1 : static_cast<int>(found - calls.begin());
  }
};

TEST_F(PrintDesignChart, TheRecordHoldsTheRectangleInItsOwnOrder) {
  Load(TwoShortCurves());
  const clsPlotMetrics metrics = MetricsIn({100, 900, 200, 800});
  EXPECT_EQ(metrics.Target.Left, 100);
  EXPECT_EQ(metrics.Target.Right, 900);
  EXPECT_EQ(metrics.Target.Top, 200);
  EXPECT_EQ(metrics.Target.Bottom, 800);
  EXPECT_EQ(metrics.Window.XMax, 7);
  EXPECT_EQ(metrics.Window.YMax, 0.4);
  EXPECT_EQ(metrics.Title, "Tampa");
}

// 800 x 600 leaves 760 x 560. In units of R the bands are 1.02 x 0.01 above, 0.4, and 1.2 x 0.01 +
// 1.1 x 0.008 below, 0.431 in all: the frame would be 560 x 0.4 / 0.431 = 519.72 high and 692.96
// wide, which is within 760. So left = 100 + 20 + (760 - 692.96) / 2 = 153.52, right = 846.48, top
// = 200 + 20 + 560 x 0.0102 / 0.431 = 233.25, bottom = 752.97.
TEST_F(PrintDesignChart, TheFrameIsLimitedByTheHeight) {
  Load(TwoShortCurves());
  EXPECT_EQ(MetricsIn({100, 900, 200, 800}).Frame, (clsRectangle_Integer{154, 846, 233, 753}));
}

// 400 x 600: the frame is 360 wide and 270 high; a unit is 675 pixels, so the bands are 6.885 and
// 14.04, and 560 - 290.925 = 269.075 is left, half of it above: top = 200 + 20 + 134.5375 + 6.885.
TEST_F(PrintDesignChart, TheFrameIsLimitedByTheWidth) {
  Load(TwoShortCurves());
  EXPECT_EQ(MetricsIn({100, 500, 200, 800}).Frame, (clsRectangle_Integer{120, 480, 361, 631}));
}

// Frame 154...846 by 233...753 (above), 692 x 520. The title is 0.01 x 520 / 0.4 = 13 high, other
// text 10.4, so 10, a tick 6.5, so to the even 6. Columns: V = 3.5 is 500, 1.75 is 327, 3.52 is
// 501.98, so 502. Rows: R = 0.2 is 493, 0.1 is 623, 0.3 is 363. At 300 to the inch the thin lines
// are 1 pixel wide, the frame's 2; curves are (520 + 140) / 280 = 2 wide. The caption covers 327 to
// 352 by 363 + 10 / 6 to 373. The title's cell begins 0.25 x 13 above its band, at 220 - 3.25.
TEST_F(PrintDesignChart, FollowsItsSequence) {
  Load(TwoShortCurves());
  const Log calls = Print(100, 200, 900, 800);
  const Log expected = {
      "text 485,217 \"Tampa\" Arial 13 colour 0x000000",
      "fill 153,232 to 847,234 colour 0x000000",
      "fill 845,232 to 847,754 colour 0x000000",
      "fill 153,752 to 847,754 colour 0x000000",
      "fill 153,232 to 155,754 colour 0x000000",
      "line 500,751 to 500,234 colour 0xE0E0E0 width 1 copy",
      "line 156,493 to 845,493 colour 0xE0E0E0 width 1 copy",
      "line 500,751 to 500,745 colour 0x000000 width 1 copy",
      "line 156,493 to 162,493 colour 0x000000 width 1 copy",
      "text 154,754 \"0\" Arial 10 colour 0x000000",
      "text 493,754 \"3.5\" Arial 10 colour 0x000000",
      "text 841,754 \"7\" Arial 10 colour 0x000000",
  };
  ASSERT_GE(calls.size(), expected.size());
  EXPECT_THAT(Log(calls.begin(), calls.begin() + static_cast<long>(expected.size())),
              ElementsAreArray(expected));
  const std::vector<std::string_view> steps = {
      "text 365,766 \"V, Reuse Volume (inches on equivalent impervious area)\" Arial 10",
      "text 145,748 \"0\"",
      "text 135,488 \"0.2\"",
      "text 135,228 \"0.4\"",
      "text 120,613 \"R, Reuse Rate (in/day on equiv. impervious area)\" Arial 10 angle 900",
      "fill 327,364 to 352,373 colour 0xFFFFFF",
      "text 327,363 \"E=50%\" Arial 10 colour 0x000000",
      "clip 154,233 to 847,754",
      "polyline 500,623",
      "polyline 500,493",
      "unclip",
      "fill 498,621 to 503,626",
  };
  int before = static_cast<int>(expected.size()) - 1;
  for (const std::string_view step : steps) {
    const int place = Place(calls, step);
    EXPECT_GT(place, before) << step << "\n" << testing::PrintToString(calls);
    before = place;
  }
  EXPECT_THAT(calls, Not(Contains(StartsWith("picture"))));
  EXPECT_THAT(calls, Not(Contains(HasSubstr("colour 0x800000"))));
}

TEST_F(PrintDesignChart, OnlyLinesOfTheirOwnWidthGrowWithTheResolution) {
  Load(TwoShortCurves());
  RecordingPrinter printer({1200, {10200, 13200}, 300});
  chart_.PrintDesignChart(printer, 100, 200, 900, 800);
  EXPECT_THAT(printer.Calls(), Contains("fill 149,228 to 851,238 colour 0x000000"));
  EXPECT_THAT(printer.Calls(), Contains(HasSubstr("colour 0xE0E0E0 width 5 copy")));
}

TEST_F(PrintDesignChart, WithoutCurvesNothingIsPrinted) {
  EXPECT_THAT(Print(100, 200, 900, 800), testing::IsEmpty());
}

TEST_F(PrintDesignChart, ARectangleWithoutRoomIsNoFault) {
  Load(TwoShortCurves());
  EXPECT_THAT(Print(0, 0, 0, 0), Not(Contains(StartsWith("text"))));
  EXPECT_THAT(Print(900, 800, 100, 200), Not(Contains(StartsWith("text"))));
  Print(-32768, -32768, 32767, 32767);
  Print(32000, 32000, 32767, 32767);
}

// A frame of 100 pixels would give labels of 2 pixels and a title of 2.5.
TEST_F(PrintDesignChart, TextBelowSixPixelsIsNotPrinted) {
  Load(LogarithmicCurves());
  const Log calls = Print(100, 200, 300, 350);
  EXPECT_THAT(calls, Not(Contains(StartsWith("text"))));
  EXPECT_THAT(calls, Contains(StartsWith("polyline")));
}

// 0.008 x height / 0.4 is 5.5 at 275, to the even 6; at 274 it is 5.48.
TEST_F(PrintDesignChart, TextOfSixPixelsIsPrinted) {
  Load(TwoShortCurves());
  for (std::int16_t bottom = 500; bottom < 560; ++bottom) {
    const clsRectangle_Integer frame = MetricsIn({100, 900, 200, bottom}).Frame;
    const Log calls = Print(100, 200, 900, bottom);
    const bool has = std::ranges::any_of(
        calls, [](const auto& c) { return c.find("\"3.5\"") != std::string::npos; });
    EXPECT_EQ(has, frame.Bottom - frame.Top >= 275) << frame.Bottom - frame.Top;
  }
}

// --- The hotspot ---

// V = 3.5 is 500, R = 0.3 is 363: the mark reaches half of a label's 10 pixels.
TEST_F(PrintDesignChart, TheHotspotIsLastAndFilledWithRed) {
  Load(WithWideCurves());
  std::string E;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.3", "3.5", E));
  const Log calls = Print(100, 200, 900, 800);
  const int mark = Place(calls, "fill polygon 500,358 505,363 500,368 495,363 colour 0x0000FF");
  ASSERT_NE(mark, -1) << testing::PrintToString(calls);
  EXPECT_GT(mark, Place(calls, "unclip"));
  EXPECT_EQ(calls.size(), static_cast<std::size_t>(mark) + 4);
  EXPECT_EQ(calls[calls.size() - 1], "text 505,348 \"E=" + E + "%\" Arial 10 colour 0x0000FF");
  EXPECT_THAT(calls, Contains("line 154,363 to 500,363 colour 0x0000FF width 1 copy"));
  EXPECT_THAT(calls, Contains("line 500,753 to 500,363 colour 0x0000FF width 1 copy"));
}

// A rate above the chart's own limit is an answer like any other: R = 0.403 is row 753 - 523.9,
// four above the frame and within the rectangle.
TEST_F(PrintDesignChart, AnAnswerJustAboveTheFrameIsPrinted) {
  const Log calls = PrintAnswerAt("0.403");
  EXPECT_THAT(calls, Contains("fill polygon 500,224 505,229 500,234 495,229 colour 0x0000FF"));
  EXPECT_THAT(calls, Contains("line 154,229 to 500,229 colour 0x0000FF width 1 copy"));
  EXPECT_THAT(calls.back(), HasSubstr("\"E=70%\" Arial 10 colour 0x0000FF"));
}

// R = 0.435 is row 753 - 565.5, 45 above the frame and 12 above the rectangle: the leader leads
// there. The text keeps to the frame, beside the column of V.
TEST_F(PrintDesignChart, AnAnswerAboveTheRectangleIsCutOffAtItsEdge) {
  const Log calls = PrintAnswerAt("0.435");
  const int clip = Place(calls, "clip 100,200 to 901,801");
  ASSERT_NE(clip, -1) << testing::PrintToString(calls);
  const auto at = [&](int offset) { return calls.at(static_cast<std::size_t>(clip + offset)); };
  EXPECT_EQ(at(1), "line 154,188 to 500,188 colour 0x0000FF width 1 copy");
  EXPECT_EQ(at(2), "line 500,753 to 500,188 colour 0x0000FF width 1 copy");
  EXPECT_EQ(at(3), "fill polygon 500,183 505,188 500,193 495,188 colour 0x0000FF");
  EXPECT_EQ(at(4), "unclip");
  EXPECT_EQ(calls.back(), "text 505,234 \"E=70%\" Arial 10 colour 0x0000FF");
}

TEST_F(PrintDesignChart, AHiddenHotspotIsNotPrinted) {
  Load(WithWideCurves());
  std::string E;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.3", "3.5", E));
  chart_.HideHotSpot();
  EXPECT_THAT(Print(100, 200, 900, 800), Not(Contains(HasSubstr("0x0000FF"))));
}

TEST_F(PrintDesignChart, TheHotspotsTextKeepsOffTheFrameAndTheCaptions) {
  CurveFileText file = WithWideCurves();
  file.labels = {"A caption", "3.55,0.31"};
  Load(file);
  std::string E;
  ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.3", "3.5", E));
  // The caption lies above on the right, so the text goes to the left.
  const int width = static_cast<int>(E.size() + 3) * 5;
  EXPECT_EQ(Print(100, 200, 900, 800).back(), "text " + std::to_string(495 - width) +
                                                  ",348 \"E=" + E + "%\" Arial 10 colour 0x0000FF");
}

// --- What printing leaves alone ---

class PrintingAShownChart : public InteractiveFixture {};

TEST_F(PrintingAShownChart, DisturbsNeitherScreenNorHotspotNorHighlight) {
  PressAndRelease(480, 400);  // R = 0.138, V = 3.5: E = 70
  chart_.KeyDown(kSpace);
  host_.Take();
  const auto x = chart_.Point().pixel.x;
  const auto v = chart_.Point().V;
  RecordingPrinter printer;
  chart_.PrintDesignChart(printer, 100, 200, 900, 800);
  EXPECT_FALSE(printer.Calls().empty());
  EXPECT_THAT(host_.Take(), testing::IsEmpty());
  EXPECT_EQ(chart_.Point().pixel.x, x);
  EXPECT_EQ(chart_.Point().V, v);
  chart_.KeyUp(kSpace);
  EXPECT_FALSE(host_.Take().empty()) << "the highlight was still there to be taken away";
}

TEST_F(PrintingAShownChart, DuringADragLeavesTheDragGoing) {
  chart_.MouseDown(kLeft, 480, 400);
  RecordingPrinter printer;
  chart_.PrintDesignChart(printer, 100, 200, 900, 800);
  EXPECT_TRUE(chart_.MouseCaptured());
  chart_.MouseMove(490, 310);
  ExpectPixel(490, 310);
}

}  // namespace
}  // namespace orvik
