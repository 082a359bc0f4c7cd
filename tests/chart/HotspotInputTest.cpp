// What the mouse and the keys do to the hotspot, without a screen.
#include <cmath>
#include <limits>

#include "InteractiveFixture.h"

namespace orvik {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class HotspotInput : public InteractiveFixture {
 protected:
  void SetUp() override {
    InteractiveFixture::SetUp();
    host_.isShown = false;  // events and requests only
  }
};

TEST_F(HotspotInput, FrameLiesWhereTheHandCalculationPutsIt) {
  EXPECT_EQ(chart_.Geometry().Frame(), (clsRectangle_Integer{108, 852, 34, 592}));
}

TEST_F(HotspotInput, APressPlacesTheHotspotAndRaisesChangeThenMousePressed) {
  chart_.MouseDown(kLeft, 480, 434);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "Change", "MousePressed"));
  EXPECT_TRUE(chart_.HotSpotVisibile());
  EXPECT_TRUE(chart_.MouseCaptured());
  ExpectPixel(480, 434);
  EXPECT_DOUBLE_EQ(chart_.Point().V, 3.5);              // 7 * 372 / 744
  EXPECT_DOUBLE_EQ(chart_.Point().R, 0.4 * 158 / 558);  // 592 - 434 rows up
}

TEST_F(HotspotInput, EIsEvaluatedBeforeChangeIsRaised) {
  float E = 0;
  bool known = false;
  chart_.OnChange = [&] { known = chart_.GetE(E); };
  chart_.MouseDown(kLeft, 480, 434);
  const double R = 0.4 * 158 / 558;
  EXPECT_TRUE(known);
  EXPECT_NEAR(E, 50 + 400 * (R + 0.05 * std::log(3.5) - 0.15), 1e-3);
  EXPECT_EQ(chart_.ErrMsg(), "Success");
}

TEST_F(HotspotInput, OutsideTheCurvesTheHotspotMovesAndEIsUndefined) {
  chart_.MouseDown(kLeft, 480, 100);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "Change", "MousePressed"));
  float R = 0;
  float V = 0;
  float E = 1;
  EXPECT_TRUE(chart_.GetR(R));
  EXPECT_TRUE(chart_.GetV(V));
  EXPECT_FALSE(chart_.GetE(E));
  EXPECT_EQ(E, 0);
  EXPECT_EQ(chart_.ErrMsg(), "Out of range");
  EXPECT_EQ(chart_.HelpTopicIndex(), 1);
}

TEST_F(HotspotInput, OnlyTheLeftButtonInInteractiveModePlaces) {
  for (const std::int16_t button : {kRight, kMiddle, std::int16_t{0}, std::int16_t{3}}) {
    chart_.MouseDown(button, 480, 434);
    EXPECT_THAT(host_.Take(), IsEmpty()) << button;
  }
  chart_.InteractiveMode(false);
  host_.Take();
  chart_.MouseDown(kLeft, 480, 434);
  EXPECT_THAT(host_.Take(), IsEmpty());
  EXPECT_FALSE(chart_.HotSpotVisibile());
  EXPECT_FALSE(chart_.MouseCaptured());
}

TEST_F(HotspotInput, APressOnTheFrameLineCountsAsInside) {
  for (const auto& [x, y] : {std::pair{108.0, 592.0},
                             {852.0, 34.0},
                             {108.0, 34.0},
                             {107.6, 592.4},
                             {852.5, 300.0}}) {  // 852.5 rounds to even
    PressAndRelease(x, y);
    EXPECT_TRUE(chart_.HotSpotVisibile()) << x << ", " << y;
    chart_.HideHotSpot();
  }
}

TEST_F(HotspotInput, APressOutsideTheFrameDoesNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const auto& [x, y] : {std::pair{107.0, 300.0},
                             {853.0, 300.0},
                             {480.0, 33.0},
                             {480.0, 593.0},
                             {107.5, 33.4},
                             {70000.0, 300.0},
                             {480.0, -70000.0},
                             {480.0 + 65536, 434.0},
                             {1e300, 1e300},
                             {nan, 300.0},
                             {480.0, nan},
                             {-infinity, infinity}}) {
    chart_.MouseDown(kLeft, x, y);
    EXPECT_THAT(host_.Take(), IsEmpty()) << x << ", " << y;
  }
  EXPECT_FALSE(chart_.HotSpotVisibile());
}

TEST_F(HotspotInput, ADragRaisesChangeForEachMoveAndMouseReleasedAtItsEnd) {
  chart_.MouseDown(kLeft, 480, 434);
  host_.Take();
  chart_.MouseMove(481, 434);
  chart_.MouseMove(481, 430);
  ExpectPixel(481, 430);
  chart_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate", "invalidate", "Change", "invalidate",
                                        "invalidate", "Change", "release", "MouseReleased"));
  EXPECT_FALSE(chart_.MouseCaptured());
}

TEST_F(HotspotInput, ADragThatLeavesTheFrameFreezesAndResumesInside) {
  chart_.MouseDown(kLeft, 480, 434);
  host_.Take();
  for (const double x : {860.0, 40000.0, -40000.0}) chart_.MouseMove(x, 434);
  EXPECT_THAT(host_.Take(), IsEmpty());
  ExpectPixel(480, 434);
  chart_.MouseMove(700, 500);
  ExpectPixel(700, 500);
  EXPECT_EQ(host_.Take().back(), "Change");
}

TEST_F(HotspotInput, ReleasingOutsideTheFrameStillRaisesMouseReleased) {
  chart_.MouseDown(kLeft, 480, 434);
  chart_.MouseMove(900, 620);
  host_.Take();
  chart_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("release", "MouseReleased"));
}

TEST_F(HotspotInput, MovesAndReleasesWithoutAPressDoNothing) {
  chart_.MouseMove(480, 434);
  chart_.MouseUp();
  chart_.CaptureLost();
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotInput, LosingTheMouseEndsTheDragOnce) {
  chart_.MouseDown(kLeft, 480, 434);
  host_.Take();
  chart_.CaptureLost();
  chart_.CaptureLost();
  chart_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("MouseReleased"));
  EXPECT_FALSE(chart_.MouseCaptured());
  EXPECT_TRUE(chart_.HotSpotVisibile());
}

// Giving the mouse back makes the system report its loss before ReleaseMouse returns.
TEST_F(HotspotInput, TheReportOfItsOwnReleaseIsNotASecondRelease) {
  host_.onRelease = [this] { chart_.CaptureLost(); };
  chart_.MouseDown(kLeft, 480, 434);
  host_.Take();
  chart_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("release", "MouseReleased"));
}

TEST_F(HotspotInput, ArrowKeysMoveByOnePixelAndKeepTheOtherCoordinateExactly) {
  struct Case {
    std::int16_t key;
    int dX, dY;
  };
  std::string ignored;
  for (const Case& c : {Case{kArrowRight, 1, 0}, Case{kArrowLeft, -1, 0}, Case{kArrowUp, 0, -1},
                        Case{kArrowDown, 0, 1}}) {
    ASSERT_TRUE(chart_.SetHotspotUsing_RV("0.1234567", "3.1415926", ignored));
    const int X = chart_.Point().pixel.x;  // 108 + 744 * 3.1415926 / 7 = 441.9
    const int Y = chart_.Point().pixel.y;  // 592 - 558 * 0.1234567 / 0.4 = 419.8
    ASSERT_EQ(X, 442);
    ASSERT_EQ(Y, 420);
    host_.Take();
    chart_.KeyDown(c.key);
    ExpectPixel(X + c.dX, Y + c.dY);
    const double V = c.dX == 0 ? 3.1415926 : 7.0 * (X + c.dX - 108) / 744;
    const double R = c.dY == 0 ? 0.1234567 : 0.4 * (592 - Y - c.dY) / 558;
    EXPECT_DOUBLE_EQ(chart_.Point().V, V) << c.key;
    EXPECT_DOUBLE_EQ(chart_.Point().R, R) << c.key;
    float E = 0;
    EXPECT_TRUE(chart_.GetE(E));
    EXPECT_NEAR(E, 50 + 400 * (R + 0.05 * std::log(V) - 0.15), 1e-2) << c.key;
    EXPECT_EQ(host_.Take().back(), "Change");
  }
}

TEST_F(HotspotInput, OnTheFramesEdgeTheArrowThatLeadsOutDoesNothing) {
  struct Case {
    double x, y;
    std::int16_t key;
  };
  for (const Case& c : {Case{852, 300, kArrowRight}, Case{108, 300, kArrowLeft},
                        Case{400, 34, kArrowUp}, Case{400, 592, kArrowDown}}) {
    PressAndRelease(c.x, c.y);
    chart_.KeyDown(c.key);
    EXPECT_THAT(host_.Take(), IsEmpty()) << c.key;
    ExpectPixel(static_cast<int>(c.x), static_cast<int>(c.y));
  }
}

TEST_F(HotspotInput, ArrowKeysWorkWithoutInteractiveMode) {
  PressAndRelease(480, 434);
  chart_.InteractiveMode(false);
  chart_.KeyDown(kArrowUp);
  ExpectPixel(480, 433);
}

TEST_F(HotspotInput, ArrowKeysDoNothingWhileTheHotspotIsHidden) {
  for (const std::int16_t key : {kArrowLeft, kArrowUp, kArrowRight, kArrowDown}) {
    chart_.KeyDown(key);
  }
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotInput, OtherKeysDoNothing) {
  PressAndRelease(480, 434);
  for (const int code : {0, 13, 27, 36, 41, 65, 112, -37}) {
    const auto key = static_cast<std::int16_t>(code);
    chart_.KeyDown(key);
    chart_.KeyUp(key);
  }
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotInput, ResizingKeepsThePlotPosition) {
  PressAndRelease(480, 434);
  const double V = chart_.Point().V;
  const double R = chart_.Point().R;
  chart_.Resize(400, 900);  // usable 360 x 860: the width is the limit, the frame is 360 x 270
  EXPECT_EQ(chart_.Point().V, V);
  EXPECT_EQ(chart_.Point().R, R);
  EXPECT_EQ(chart_.Point().pixel.x, 20 + 180);  // V = 3.5 of 7
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
  chart_.Resize(960, 640);
  ExpectPixel(480, 434);
}

TEST_F(HotspotInput, HidingTwiceIsHidingOnce) {
  PressAndRelease(480, 434);
  chart_.HideHotSpot();
  EXPECT_FALSE(chart_.HotSpotVisibile());
  host_.Take();
  chart_.HideHotSpot();
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotInput, HiddenHotspotHasNoValues) {
  PressAndRelease(480, 434);
  chart_.HideHotSpot();
  float value = 1;
  EXPECT_FALSE(chart_.GetR(value));
  EXPECT_EQ(value, 0);
  EXPECT_FALSE(chart_.GetE(value));
}

TEST_F(HotspotInput, NothingLoadedMeansNothingHappens) {
  PressAndRelease(480, 434);
  chart_.SetCurveData(0);
  host_.Take();
  chart_.MouseDown(kLeft, 480, 434);
  chart_.KeyDown(kArrowUp);
  chart_.KeyDown(kSpace);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(HotspotInput, AFailedLoadInTheMiddleOfADragLeavesOnlyTheRelease) {
  chart_.MouseDown(kLeft, 480, 434);
  chart_.SetCurveData(1);  // no such file
  host_.Take();
  chart_.MouseMove(500, 434);
  chart_.KeyDown(kArrowUp);
  EXPECT_THAT(host_.Take(), IsEmpty());
  chart_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("release", "MouseReleased"));
}

TEST_F(HotspotInput, NewCurvesLeaveEUndefinedUntilThePointIsLocatedOnThem) {
  PressAndRelease(480, 434);
  chart_.SetCurveData(kTampa);
  float value = 0;
  EXPECT_TRUE(chart_.GetR(value));
  EXPECT_FALSE(chart_.GetE(value));
  EXPECT_FALSE(chart_.Point().curve);
}

TEST_F(HotspotInput, PlacingFromTwoValuesAsksForPainting) {
  std::string result;
  chart_.SetHotspotUsing_RV("0.12", "3", result);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
  chart_.SetHotspotUsing_ER("60", "0.12", result);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
  chart_.SetHotspotUsing_EV("60", "99", result);  // fails and hides the hotspot
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
}

TEST_F(HotspotInput, FocusIsKept) {
  EXPECT_FALSE(chart_.HasFocus());
  chart_.GotFocus();
  EXPECT_TRUE(chart_.HasFocus());
  chart_.LostFocus();
  EXPECT_FALSE(chart_.HasFocus());
}

TEST_F(HotspotInput, WorksWithoutAWindowAndWithoutAnswers) {
  chart_.AttachHost(nullptr);
  chart_.OnChange = nullptr;
  chart_.OnMousePressed = nullptr;
  chart_.OnMouseReleased = nullptr;
  chart_.MouseDown(kLeft, 480, 434);
  chart_.MouseMove(490, 434);
  chart_.MouseUp();
  chart_.KeyDown(kSpace);
  chart_.KeyUp(kSpace);
  chart_.HideHotSpot();
  ExpectPixel(490, 434);
}

// Too small a control has a frame without columns or rows, which cannot tell V or R.
TEST_F(HotspotInput, NoControlIsTooSmallForTheMouse) {
  for (int size = 0; size <= 48; ++size) {
    chart_.Resize(size, 48 - size);
    for (int at = 0; at <= 48; ++at) {
      EXPECT_NO_THROW(PressAndRelease(at, 20)) << size << " " << at;
      EXPECT_NO_THROW(PressAndRelease(20, at)) << size << " " << at;
      EXPECT_NO_THROW(chart_.KeyDown(kArrowDown)) << size << " " << at;
      EXPECT_NO_THROW(chart_.KeyDown(kArrowRight)) << size << " " << at;
    }
    EXPECT_TRUE(std::isfinite(chart_.Point().V) && std::isfinite(chart_.Point().R)) << size;
  }
}

// Samples beyond 16-bit pixels: no region can be built, so no efficiency can be told.
TEST_F(HotspotInput, UnusableCurvesLeaveEUndefinedAndTheDragAlive) {
  CurveFileText file = LogarithmicCurves();
  file.curves[0].A = "1000000";
  Load(file);
  host_.Take();
  EXPECT_NO_THROW(chart_.MouseDown(kLeft, 480, 434));
  EXPECT_NO_THROW(chart_.MouseMove(481, 434));
  EXPECT_NO_THROW(chart_.KeyDown(kArrowUp));
  ExpectPixel(481, 433);
  EXPECT_TRUE(chart_.MouseCaptured());
  float E = 1;
  EXPECT_FALSE(chart_.GetE(E));
  EXPECT_EQ(chart_.ErrMsg(), "Out of range");
  EXPECT_EQ(chart_.HelpTopicIndex(), 1);
  chart_.MouseUp();
  EXPECT_EQ(host_.Take().back(), "MouseReleased");
}

}  // namespace
}  // namespace orvik
