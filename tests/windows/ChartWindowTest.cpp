// The design chart in a real window, worked with real mouse and key messages.
//
// Curves: R = A - 0.05 ln V with A = 0.15, 0.20, 0.25 for E = 50, 70, 90 (see CurveFileText.h). In
// a control of 960 x 640 the frame lies at Left 108, Right 852, Top 34, Bottom 592.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "GuiObjects.h"
#include "HostToolkit.h"
#include "ParentWindow.h"
#include "chart/HostedChart.h"
#include "chart/ctrlStormwaterReuse.h"
#include "support/CurveFileText.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using namespace test;

constexpr std::int16_t kTampa = 23;

double VAt(int X) {
  return 7.0 * (X - 108) / 744;
}
double RAt(int Y) {
  return 0.4 * (592 - Y) / 558;
}
double EAt(int X, int Y) {
  return 50 + 400 * (RAt(Y) + 0.05 * std::log(VAt(X)) - 0.15);
}
bool IsInFrame(int X, int Y) {
  return 108 <= X && X <= 852 && 34 <= Y && Y <= 592;
}

class ChartWindow : public testing::Test {
 protected:
  void SetUp() override {
    folder_.Write("KAV Data/Tampa.crv", LogarithmicCurves().Text());
    chart_.SetCurveData(kTampa);
    chart_.InteractiveMode(true);
    chart_.OnChange = [this] { ++changes_; };
    chart_.OnMousePressed = [this] { ++presses_; };
    chart_.OnMouseReleased = [this] { ++releases_; };
    hosted_.Place().Move(0, 0, 960, 640);
    PaintAll(Window());
    HandleMessages();
  }

  HWND Window() const { return toolkit_.lastHost; }
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendMessageW(Window(), message, wParam, lParam);
  }
  void Press(int x, int y) { Send(WM_LBUTTONDOWN, MK_LBUTTON, At(x, y)); }
  void MoveTo(int x, int y) { Send(WM_MOUSEMOVE, MK_LBUTTON, At(x, y)); }
  void Release(int x, int y) { Send(WM_LBUTTONUP, 0, At(x, y)); }
  Picture Shown() const { return PixelsOf(Window()); }

  void ExpectHotspotAt(int X, int Y) {
    float V = 0;
    float R = 0;
    float E = 0;
    EXPECT_TRUE(chart_.GetV(V));
    EXPECT_TRUE(chart_.GetR(R));
    EXPECT_TRUE(chart_.GetE(E));
    EXPECT_FLOAT_EQ(V, static_cast<float>(VAt(X)));
    EXPECT_FLOAT_EQ(R, static_cast<float>(RAt(Y)));
    EXPECT_NEAR(E, EAt(X, Y), 2e-3);
  }

  TempFolder folder_;
  ParentWindow parent_;
  HostToolkit toolkit_{parent_.Handle()};
  ctrlStormwaterReuse chart_{folder_.Path()};
  HostedChart hosted_{toolkit_, "ctrlStormwaterReuse1", chart_};
  int changes_ = 0;
  int presses_ = 0;
  int releases_ = 0;
};

// --- Drag ---

TEST_F(ChartWindow, ADragOf500MovesEndsAtItsLastPointAndLeavesNothingBehind) {
  Press(400, 400);
  Release(400, 400);  // what the first use brings along stays
  const GuiObjects before = GuiObjects::Count();
  changes_ = presses_ = releases_ = 0;

  std::mt19937 random(500);
  const auto number = [&](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  int inside = 0;
  Press(480, 434);
  for (int i = 0; i < 499; ++i) {
    const int x = number(-40, 1000);
    const int y = number(-40, 680);
    if (IsInFrame(x, y)) ++inside;
    ::PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, At(x, y));
    HandleMessages();
  }
  ::PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, At(523, 417));
  ::PostMessageW(Window(), WM_LBUTTONUP, 0, At(523, 417));
  ASSERT_TRUE(Until([&] { return releases_ == 1; }));

  EXPECT_EQ(presses_, 1);
  EXPECT_EQ(changes_, 1 + inside + 1);
  ExpectHotspotAt(523, 417);
  EXPECT_EQ(::GetCapture(), nullptr);
  EXPECT_EQ(GuiObjects::Count(), before);
}

TEST_F(ChartWindow, ADragLeavesThePictureThatAPaintingOfItsEndGives) {
  Press(300, 300);
  HandleMessages();  // the focus, which the press has brought, is marked
  for (int i = 0; i < 200; ++i) MoveTo(300 + 2 * i, 300 + i % 97);
  Release(698, 302);
  const Picture dragged = Shown();
  PaintAll(Window());
  EXPECT_EQ(dragged.pixels, Shown().pixels);
}

TEST_F(ChartWindow, OutsideTheFrameTheHotspotWaitsAndTheReleaseIsStillTold) {
  Press(480, 434);
  EXPECT_EQ(::GetCapture(), Window());
  for (const auto& [x, y] : {std::pair{853, 434}, {480, 33}, {-5, 300}, {480, 700}, {30000, 9}}) {
    MoveTo(x, y);
    ExpectHotspotAt(480, 434);
  }
  EXPECT_EQ(changes_, 1);
  MoveTo(600, 450);
  ExpectHotspotAt(600, 450);
  MoveTo(900, 450);
  Release(900, 450);
  ExpectHotspotAt(600, 450);
  EXPECT_EQ(releases_, 1);
  EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ChartWindow, TheRightButtonDoesNothing) {
  const Picture before = Shown();
  Send(WM_RBUTTONDOWN, MK_RBUTTON, At(480, 434));
  MoveTo(500, 434);
  Send(WM_RBUTTONUP, 0, At(480, 434));
  EXPECT_FALSE(chart_.HotSpotVisibile());
  EXPECT_EQ(changes_ + presses_ + releases_, 0);
  EXPECT_EQ(Shown().pixels, before.pixels);
}

TEST_F(ChartWindow, AWindowThatTakesTheMouseEndsTheDragOnce) {
  Press(480, 434);
  ::SetCapture(parent_.Handle());
  EXPECT_EQ(releases_, 1);
  MoveTo(500, 434);
  Release(500, 434);
  EXPECT_EQ(releases_, 1);
  ExpectHotspotAt(480, 434);
  EXPECT_EQ(::GetCapture(), parent_.Handle());
  ::ReleaseCapture();
}

TEST_F(ChartWindow, EscEndsADragAndPutsThePointBack) {
  Press(480, 434);
  Release(480, 434);
  const Picture before = Shown();
  Press(600, 450);
  MoveTo(650, 470);
  Send(WM_KEYDOWN, VK_ESCAPE);
  EXPECT_EQ(::GetCapture(), nullptr);
  EXPECT_EQ(releases_, 2);
  ExpectHotspotAt(480, 434);
  EXPECT_EQ(Shown().pixels, before.pixels);
  MoveTo(700, 470);  // the button is still down
  Release(700, 470);
  EXPECT_EQ(releases_, 2);
  ExpectHotspotAt(480, 434);
}

// --- Keys ---

TEST_F(ChartWindow, ArrowKeysMoveTheHotspotByAPixel) {
  Press(480, 434);
  Release(480, 434);
  EXPECT_EQ(::GetFocus(), Window());
  EXPECT_TRUE(chart_.HasFocus());
  for (const WPARAM key : {VK_RIGHT, VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP, VK_UP}) {
    ::PostMessageW(Window(), WM_KEYDOWN, key, 1);
    ::PostMessageW(Window(), WM_KEYUP, key, 1);
  }
  ASSERT_TRUE(Until([&] { return changes_ == 7; }));
  ExpectHotspotAt(481, 433);
}

TEST_F(ChartWindow, OnTheFramesRightEdgeTheRightArrowDoesNothing) {
  Press(852, 434);
  Release(852, 434);
  changes_ = 0;
  Send(WM_KEYDOWN, VK_RIGHT);
  EXPECT_EQ(changes_, 0);
  Send(WM_KEYDOWN, VK_LEFT);
  EXPECT_EQ(changes_, 1);
}

TEST_F(ChartWindow, TheSpaceBarShowsTheCurveWhileItIsHeld) {
  Press(480, 434);
  Release(480, 434);
  HandleMessages();
  const Picture before = Shown();
  Send(WM_KEYDOWN, VK_SPACE);
  const Picture held = Shown();
  EXPECT_NE(held.pixels, before.pixels);
  Send(WM_KEYDOWN, VK_SPACE);  // the keyboard repeats it
  EXPECT_EQ(Shown().pixels, held.pixels);
  Send(WM_KEYUP, VK_SPACE);
  EXPECT_EQ(Shown().pixels, before.pixels);
}

TEST_F(ChartWindow, APaintingOfAnyPartTakesTheHighlightAway) {
  Press(480, 434);
  Release(480, 434);
  HandleMessages();
  const Picture before = Shown();
  Send(WM_KEYDOWN, VK_SPACE);
  const RECT corner{0, 0, 5, 5};
  ::InvalidateRect(Window(), &corner, FALSE);
  ::UpdateWindow(Window());
  EXPECT_EQ(Shown().pixels, before.pixels);
  Send(WM_KEYUP, VK_SPACE);
  EXPECT_EQ(Shown().pixels, before.pixels);
}

TEST_F(ChartWindow, LosingTheFocusTakesTheHighlightAway) {
  Press(480, 434);
  Release(480, 434);
  Send(WM_KEYDOWN, VK_SPACE);
  ::SetFocus(parent_.Handle());
  EXPECT_FALSE(chart_.HasFocus());
  PaintAll(Window());
  const Picture painted = Shown();
  Send(WM_KEYUP, VK_SPACE);
  EXPECT_EQ(Shown().pixels, painted.pixels);
}

TEST_F(ChartWindow, AsksForArrowsAndTheSpaceBarAndForEscWhileItIsDragged) {
  const LRESULT code = Send(WM_GETDLGCODE);
  EXPECT_EQ(code & (DLGC_WANTARROWS | DLGC_WANTCHARS), DLGC_WANTARROWS | DLGC_WANTCHARS);
  EXPECT_EQ(code & (DLGC_WANTTAB | DLGC_WANTALLKEYS), 0);
  MSG key{};
  key.message = WM_KEYDOWN;
  key.wParam = VK_ESCAPE;
  const auto wantsEsc = [&] {
    return (Send(WM_GETDLGCODE, key.wParam, reinterpret_cast<LPARAM>(&key)) & DLGC_WANTMESSAGE) !=
           0;
  };
  EXPECT_FALSE(wantsEsc());
  Press(480, 434);
  EXPECT_TRUE(wantsEsc());
  Release(480, 434);
  EXPECT_FALSE(wantsEsc());
}

// --- Window ---

TEST_F(ChartWindow, ResizingKeepsThePointInPlotCoordinates) {
  Press(480, 434);
  Release(480, 434);
  hosted_.Place().Move(0, 0, 400, 600);
  ExpectHotspotAt(480, 434);
  EXPECT_EQ(chart_.Point().pixel.x, 20 + 180);  // the frame is 360 wide here, and V = 3.5 of 7
  HandleMessages();
  const Picture shown = Shown();
  EXPECT_EQ(shown.size, (Size{400, 600}));
  PaintAll(Window());
  EXPECT_EQ(Shown().pixels, shown.pixels);
}

TEST_F(ChartWindow, EmptyTheControlShowsItsPaperAndBorder) {
  chart_.SetCurveData(0);
  HandleMessages();
  const Picture shown = Shown();
  const auto at = [&](std::size_t x, std::size_t y) { return shown.pixels[y * 960 + x]; };
  EXPECT_EQ(at(480, 320), 0xFFFFFFU);
  const auto system = [](int index) {
    const COLORREF colour = ::GetSysColor(index);
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
           static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
  };
  EXPECT_EQ(at(300, 0), system(COLOR_3DSHADOW));
  EXPECT_EQ(at(300, 1), system(COLOR_3DDKSHADOW));
  EXPECT_EQ(at(300, 638), system(COLOR_3DLIGHT));
  EXPECT_EQ(at(300, 639), system(COLOR_3DHIGHLIGHT));
}

TEST_F(ChartWindow, HiddenItStillFollowsTheNumbers) {
  hosted_.Place().Visible(false);
  std::string E;
  EXPECT_TRUE(chart_.SetHotspotUsing_RV("0.12", "3.5", E));
  hosted_.Place().Visible(true);
  HandleMessages();
  const Picture shown = Shown();
  PaintAll(Window());
  EXPECT_EQ(Shown().pixels, shown.pixels);
}

}  // namespace
}  // namespace orvik
