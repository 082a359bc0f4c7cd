// The marks that come and go on the screen between two paintings.
#include <random>

#include "InteractiveFixture.h"
#include "PixelSurface.h"
#include "chart/HotspotDrawing.h"

namespace orvik {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::StartsWith;

using Log = std::vector<std::string>;

// The box reaches 7 pixels each way; the leaders end before it.
Log MarkAt(int X, int Y) {
  const auto at = [](int x, int y) { return std::to_string(x) + "," + std::to_string(y); };
  const std::string pen = " colour 0xFFFF00 width 1 xor";
  return {"polyline " + at(X - 7, Y - 7) + " " + at(X + 7, Y - 7) + " " + at(X + 7, Y + 7) + " " +
              at(X - 7, Y + 7) + " " + at(X - 7, Y - 7) + pen,
          "line " + at(108, Y) + " to " + at(X - 7, Y) + pen,
          "line " + at(X, 592) + " to " + at(X, Y + 7) + pen};
}

Log Join(std::initializer_list<Log> parts) {
  Log all;
  for (const Log& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

class HotspotDrawing : public InteractiveFixture {
 protected:
  // What a painting draws after the chart itself and before the border.
  Log PaintedMarks() {
    RecordingSurface surface;
    chart_.Paint(surface);
    Log marks = surface.Take();
    std::erase_if(marks, [](const std::string& call) { return !call.ends_with(" xor"); });
    return marks;
  }
};

TEST_F(HotspotDrawing, APressDrawsTheMarkBeforeItsEvents) {
  chart_.MouseDown(kLeft, 480, 434);
  EXPECT_THAT(host_.Take(), ElementsAre("capture",
                                        "polyline 473,427 487,427 487,441 473,441 473,427 colour "
                                        "0xFFFF00 width 1 xor",
                                        "line 108,434 to 473,434 colour 0xFFFF00 width 1 xor",
                                        "line 480,592 to 480,441 colour 0xFFFF00 width 1 xor",
                                        "Change", "MousePressed"));
}

TEST_F(HotspotDrawing, ASecondPressErasesBeforeItCaptures) {
  PressAndRelease(480, 434);
  chart_.MouseDown(kLeft, 500, 400);
  EXPECT_THAT(host_.Take(),
              ElementsAreArray(Join(
                  {MarkAt(480, 434), {"capture"}, MarkAt(500, 400), {"Change", "MousePressed"}})));
}

TEST_F(HotspotDrawing, AMoveErasesAndDraws) {
  chart_.MouseDown(kLeft, 480, 434);
  host_.Take();
  chart_.MouseMove(481, 433);
  EXPECT_THAT(host_.Take(),
              ElementsAreArray(Join({MarkAt(480, 434), MarkAt(481, 433), {"Change"}})));
}

TEST_F(HotspotDrawing, AnArrowErasesAndDraws) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kArrowLeft);
  EXPECT_THAT(host_.Take(),
              ElementsAreArray(Join({MarkAt(480, 434), MarkAt(479, 434), {"Change"}})));
}

TEST_F(HotspotDrawing, HidingErasesOnce) {
  PressAndRelease(480, 434);
  chart_.HideHotSpot();
  EXPECT_THAT(host_.Take(), ElementsAreArray(MarkAt(480, 434)));
  chart_.HideHotSpot();
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, NearTheEdgesThereIsNoRoomForLeaders) {
  chart_.MouseDown(kLeft, 115, 585);  // the box ends on the frame's lines
  EXPECT_THAT(host_.Take(), ElementsAre("capture", StartsWith("polyline 108,578 122,578"), "Change",
                                        "MousePressed"));
}

TEST_F(HotspotDrawing, PaintingDrawsTheVisibleHotspot) {
  PressAndRelease(480, 434);
  EXPECT_EQ(PaintedMarks(), MarkAt(480, 434));
  chart_.HideHotSpot();
  EXPECT_THAT(PaintedMarks(), IsEmpty());
}

TEST_F(HotspotDrawing, TwoDrawingsLeaveThePictureUnchanged) {
  const FramePixel hotspot = PixelOfMark(3.5, 0.11, chart_.Geometry());
  PixelSurface screen;
  screen.Line({100, 440}, {300, 440}, {0x123456, 1, DrawMode::ExclusiveOr});  // to draw upon
  const auto before = screen.pixels;
  DrawHotspot(screen, hotspot, chart_.Layout().frame, 1);
  EXPECT_NE(screen.pixels, before);
  DrawHotspot(screen, hotspot, chart_.Layout().frame, 1);
  EXPECT_EQ(screen.pixels, before);
}

// 4 sides of 14 pixels, 365 columns from 108 to before 473, 151 rows from 592 to before 441: a
// pixel that two lines shared would be missing.
TEST_F(HotspotDrawing, EachPixelOfTheMarkIsFlippedOnce) {
  PressAndRelease(480, 434);
  PixelSurface screen;
  chart_.PaintScreen(screen);
  EXPECT_EQ(screen.pixels.size(), 4U * 14 + 365 + 151);
  for (const auto& [at, colour] : screen.pixels) EXPECT_EQ(colour, kMarkColour);
}

// --- Highlight ---

// E = 70 at V = 3.5 is R = 0.2 - 0.05 ln 3.5 = 0.13736: pixel row 592 - 191.6 = 400.4, rounded 400.
TEST_F(HotspotDrawing, SpaceShowsTheCurveThroughTheHotspotWhileItIsHeld) {
  std::string R;
  ASSERT_TRUE(chart_.SetHotspotUsing_EV("70", "3.5", R));
  host_.Take();
  chart_.KeyDown(kSpace);
  const Log shown = host_.Take();
  // Clipped to the frame with its lines: an interpolated curve may rise above the chart.
  ASSERT_EQ(shown.size(), 3U);
  EXPECT_EQ(shown[0], "clip 108,34 to 853,593");
  // From V = 1.5, R = 0.2 - 0.05 ln 1.5 = 0.179727: column 108 + 159.4, row 592 - 250.7;
  // to V = 7, R = 0.2 - 0.05 ln 7 = 0.102704: column 852, row 592 - 143.3.
  EXPECT_THAT(shown[1], StartsWith("polyline 267,341 "));
  EXPECT_THAT(shown[1], testing::EndsWith(" 852,449 colour 0xFFFF00 width 1 xor"));
  chart_.KeyDown(kSpace);  // the key repeats
  EXPECT_THAT(host_.Take(), IsEmpty());
  chart_.KeyUp(kSpace);
  EXPECT_EQ(host_.Take(), shown);
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, SpaceWhileHiddenDrawsNothingAndItsReleaseNeither) {
  chart_.KeyDown(kSpace);
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, SpaceWhereEIsUndefinedDrawsNothingAndItsReleaseNeither) {
  PressAndRelease(480, 100);
  chart_.KeyDown(kSpace);
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, ReleasingAnotherKeyKeepsTheHighlight) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  host_.Take();
  chart_.KeyUp(kArrowUp);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, MovingTheHotspotRemovesTheHighlightFirst) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  const Log shown = host_.Take();
  chart_.KeyDown(kArrowUp);
  EXPECT_EQ(host_.Take(), Join({shown, MarkAt(480, 434), MarkAt(480, 433), {"Change"}}));
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, HidingTheHotspotRemovesTheHighlightFirst) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  const Log shown = host_.Take();
  chart_.HideHotSpot();
  EXPECT_EQ(host_.Take(), Join({shown, MarkAt(480, 434)}));
}

TEST_F(HotspotDrawing, PaintingTheScreenForgetsTheHighlight) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  chart_.PaintScreen(host_.screen);
  host_.Take();
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotDrawing, APictureShowsNoHighlightAndLeavesTheScreens) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  const Log shown = host_.Take();
  EXPECT_EQ(PaintedMarks(), MarkAt(480, 434));
  chart_.KeyUp(kSpace);
  EXPECT_EQ(host_.Take(), shown) << "drawn again, it is gone";
}

TEST_F(HotspotDrawing, LosingTheFocusRemovesTheHighlight) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  const Log shown = host_.Take();
  chart_.LostFocus();
  EXPECT_EQ(host_.Take(), shown);
}

// The painting that is on its way takes the highlight away; another curve drawn upon it would not.
TEST_F(HotspotDrawing, PlacingFromTwoValuesLeavesTheHighlightToThePainting) {
  PressAndRelease(480, 434);
  chart_.KeyDown(kSpace);
  host_.Take();
  std::string V;
  ASSERT_TRUE(chart_.SetHotspotUsing_ER("60", "0.12", V));
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
}

TEST_F(HotspotDrawing, WithoutCurvesThereIsNoMarkToEraseOrHighlight) {
  PressAndRelease(480, 434);
  chart_.SetCurveData(1);  // no such file: the chart is painted without anything on it
  ASSERT_FALSE(chart_.IsLoaded());
  host_.Take();
  chart_.KeyDown(kSpace);
  chart_.KeyUp(kSpace);
  chart_.HideHotSpot();
  EXPECT_THAT(host_.Take(), IsEmpty());
  EXPECT_FALSE(chart_.HotSpotVisibile());
  EXPECT_THAT(PaintedMarks(), IsEmpty());
}

TEST_F(HotspotDrawing, AHighlightBeyondThePixelsIsNotDrawn) {
  CurveFileText file = LogarithmicCurves();
  file.curves[1] = {"70", "0.001", "7", "0.2", "0", "0", "-1000"};  // R = 329,500 at VStart
  Load(file);
  std::string R;
  ASSERT_TRUE(chart_.SetHotspotUsing_EV("70", "1", R)) << chart_.ErrMsg();
  host_.Take();
  EXPECT_NO_THROW(chart_.KeyDown(kSpace));
  EXPECT_NO_THROW(chart_.KeyUp(kSpace));
  EXPECT_THAT(host_.Take(), IsEmpty());
}

// --- A surface that cannot flip pixels ---

TEST_F(HotspotDrawing, WithoutExclusiveOrNothingIsDrawnBetweenPaintings) {
  host_.screen.Support(SurfaceFeature::ExclusiveOr, false);
  chart_.MouseDown(kLeft, 480, 434);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "Change", "MousePressed"));
  chart_.KeyDown(kSpace);
  chart_.KeyUp(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
  chart_.HideHotSpot();
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
}

TEST_F(HotspotDrawing, WithoutExclusiveOrPaintingUsesTheColourThatTheMarkHasOnWhite) {
  PressAndRelease(480, 434);
  RecordingSurface surface;
  surface.Support(SurfaceFeature::ExclusiveOr, false);
  chart_.Paint(surface);
  EXPECT_THAT(surface.Take(),
              testing::Contains("line 480,592 to 480,441 colour 0x0000FF width 1 copy"));
}

// --- A screen under a long hand ---

class RepaintingHost final : public Host {
 public:
  explicit RepaintingHost(ctrlStormwaterReuse& chart) : chart_(chart) {}

  PixelSurface screen;

  void Invalidate() override { isDirty_ = true; }
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return &screen; }
  void PaintIfAsked() {
    if (isDirty_) chart_.PaintScreen(screen);
    isDirty_ = false;
  }

 private:
  ctrlStormwaterReuse& chart_;
  bool isDirty_ = false;
};

TEST_F(HotspotDrawing, AfterAnyInputTheScreenIsAFreshPaintingsScreen) {
  RepaintingHost host(chart_);
  chart_.AttachHost(&host);
  std::mt19937 random(20);
  const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
  std::string ignored;
  const std::vector<std::function<void()>> inputs = {
      [&] { chart_.MouseDown(kLeft, upTo(960), upTo(640)); },
      [&] { chart_.MouseMove(upTo(960), upTo(640)); },
      [&] { chart_.MouseMove(upTo(960), upTo(640)); },
      [&] { chart_.MouseUp(); },
      [&] { chart_.KeyDown(static_cast<std::int16_t>(kArrowLeft + upTo(3))); },
      [&] { chart_.KeyDown(kSpace); },
      [&] { chart_.KeyUp(kSpace); },
      [&] { chart_.LostFocus(); },
      [&] { chart_.HideHotSpot(); },
      [&] { chart_.Resize(700 + upTo(200), 500 + upTo(200)); },
      [&] { chart_.SetHotspotUsing_RV("0.12", std::to_string(upTo(8)), ignored); },
  };
  for (int step = 0; step < 3000; ++step) {
    inputs[static_cast<std::size_t>(upTo(static_cast<int>(inputs.size()) - 1))]();
    if (upTo(1) == 0) host.PaintIfAsked();
    if (step % 20 != 0) continue;
    chart_.KeyUp(kSpace);
    host.PaintIfAsked();
    PixelSurface fresh;
    chart_.Paint(fresh);
    ASSERT_EQ(host.screen.pixels, fresh.pixels) << "step " << step;
  }
  chart_.AttachHost(nullptr);
}

}  // namespace
}  // namespace orvik
