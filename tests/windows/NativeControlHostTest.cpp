// The window of a drawn control, worked with real messages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <stdexcept>

#include "GuiObjects.h"
#include "ParentWindow.h"
#include "platform/win32/NativeControlHost.h"

namespace orvik {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class HostWindow : public testing::Test {
 protected:
  void SetUp() override {
    host_.Move(10, 20, 120, 80);
    HandleMessages();
    host_.OnPaint = [this](Surface& surface) {
      Log("paint");
      surface.FillArea({0, 0, 120, 80}, kRed);
    };
    host_.OnResize = [this](int width, int height) {
      Log("size " + std::to_string(width) + "x" + std::to_string(height));
    };
    host_.OnMouseDown = [this](std::int16_t button, double x, double y) {
      Log("down " + std::to_string(button) + Position(x, y));
    };
    host_.OnMouseMove = [this](double x, double y) { Log("move" + Position(x, y)); };
    host_.OnMouseUp = [this](std::int16_t button, double x, double y) {
      Log("up " + std::to_string(button) + Position(x, y));
    };
    host_.OnCaptureLost = [this] { Log("capture lost"); };
    host_.OnKeyDown = [this](std::int16_t key) { Log("key down " + std::to_string(key)); };
    host_.OnKeyUp = [this](std::int16_t key) { Log("key up " + std::to_string(key)); };
    host_.OnGotFocus = [this] { Log("got focus"); };
    host_.OnLostFocus = [this] { Log("lost focus"); };
  }

  static std::string Position(double x, double y) {
    return " " + std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y));
  }
  void Log(std::string entry) { log_.push_back(std::move(entry)); }
  std::vector<std::string> Take() { return std::exchange(log_, {}); }

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendMessageW(host_.Handle(), message, wParam, lParam);
  }
  LRESULT AskFor(UINT message, WPARAM key) {
    MSG question{};
    question.hwnd = host_.Handle();
    question.message = message;
    question.wParam = key;
    return Send(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&question));
  }

  ParentWindow parent_;
  std::vector<std::string> log_;
  NativeControlHost host_{::GetModuleHandleW(nullptr), parent_.Handle()};
};

// --- Painting ---

TEST_F(HostWindow, PaintsAllOfItAtOnceAndErasesNothingBefore) {
  EXPECT_EQ(Send(WM_ERASEBKGND), 1);
  const RECT corner{0, 0, 3, 3};
  ::UpdateWindow(host_.Handle());
  ::ValidateRect(host_.Handle(), nullptr);
  Take();
  ::InvalidateRect(host_.Handle(), &corner, FALSE);
  ::UpdateWindow(host_.Handle());
  EXPECT_THAT(Take(), ElementsAre("paint"));
  const Picture shown = PixelsOf(host_.Handle());
  EXPECT_EQ(shown.size, (Size{120, 80}));
  EXPECT_THAT(shown.pixels, testing::Each(0xFF0000U));
}

TEST_F(HostWindow, InvalidateAsksForOnePaintingAndComesBackBefore) {
  PaintAll(host_.Handle());
  Take();
  host_.Invalidate();
  host_.Invalidate();
  EXPECT_THAT(Take(), IsEmpty());
  HandleMessages();
  EXPECT_THAT(Take(), ElementsAre("paint"));
}

TEST_F(HostWindow, DrawsAtOnceOnTheSurfaceOfTheScreen) {
  PaintAll(host_.Handle());
  Surface* surface = host_.DrawNow();
  ASSERT_TRUE(surface);
  EXPECT_TRUE(surface->Supports(SurfaceFeature::ExclusiveOr));
  const Pen flip{0xFFFF00, 1, DrawMode::ExclusiveOr};
  surface->Line({5, 5}, {15, 5}, flip);
  Picture shown = PixelsOf(host_.Handle());
  EXPECT_EQ(shown.pixels[5 * 120 + 5], 0x00FFFFU ^ 0xFF0000U);
  host_.DrawNow()->Line({5, 5}, {15, 5}, flip);
  EXPECT_THAT(PixelsOf(host_.Handle()).pixels, testing::Each(0xFF0000U));
}

TEST_F(HostWindow, ThereIsNothingToDrawOnWhileItIsHidden) {
  host_.Visible(false);
  EXPECT_EQ(host_.DrawNow(), nullptr);
  host_.Visible(true);
  EXPECT_NE(host_.DrawNow(), nullptr);
  ::ShowWindow(parent_.Handle(), SW_HIDE);
  EXPECT_EQ(host_.DrawNow(), nullptr);
  EXPECT_TRUE(host_.Visible());
}

TEST_F(HostWindow, AloneInItsWindowItNeedsNoMarkOfTheFocus) {
  Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
  ::SetFocus(host_.Handle());
  PaintAll(host_.Handle());
  EXPECT_THAT(PixelsOf(host_.Handle()).pixels, testing::Each(0xFF0000U));
}

TEST_F(HostWindow, MarksTheFocusInsideItsEdge) {
  const NativeControlHost other(::GetModuleHandleW(nullptr), parent_.Handle());
  Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
  ::SetFocus(host_.Handle());
  PaintAll(host_.Handle());
  const Picture focused = PixelsOf(host_.Handle());
  ::SetFocus(parent_.Handle());
  PaintAll(host_.Handle());
  EXPECT_THAT(PixelsOf(host_.Handle()).pixels, testing::Each(0xFF0000U));
  int marked = 0;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 120; ++x) {
      const bool isRing = x == 2 || y == 2 || x == 117 || y == 77;
      const bool isMarked = focused.pixels[static_cast<std::size_t>(y * 120 + x)] != 0xFF0000;
      if (isMarked) ++marked;
      EXPECT_TRUE(isRing || !isMarked) << x << "," << y;
    }
  }
  EXPECT_GT(marked, 100);
}

// --- Size and state ---

TEST_F(HostWindow, TellsItsInnerSizeOnlyWhenItChanges) {
  Take();
  host_.Move(10, 20, 200, 90);
  EXPECT_THAT(Take(), testing::Contains("size 200x90"));
  host_.Move(30, 40, 200, 90);
  EXPECT_THAT(Take(), testing::Not(testing::Contains("size 200x90")));
}

TEST_F(HostWindow, VisibleAndEnabledAreItsOwnWhateverItsParentIs) {
  EXPECT_TRUE(host_.Visible());
  EXPECT_TRUE(host_.Enabled());
  ::EnableWindow(parent_.Handle(), FALSE);
  ::ShowWindow(parent_.Handle(), SW_HIDE);
  EXPECT_TRUE(host_.Visible());
  EXPECT_TRUE(host_.Enabled());
  host_.Visible(false);
  host_.Enabled(false);
  EXPECT_FALSE(host_.Visible());
  EXPECT_FALSE(host_.Enabled());
  EXPECT_FALSE(::IsWindowEnabled(host_.Handle()));
}

// --- Mouse ---

TEST_F(HostWindow, TellsEveryButtonByItsNumber) {
  Take();
  Send(WM_RBUTTONDOWN, MK_RBUTTON, At(5, 6));
  Send(WM_RBUTTONUP, 0, At(5, 7));
  Send(WM_MBUTTONDOWN, MK_MBUTTON, At(5, 8));
  Send(WM_MBUTTONUP, 0, At(5, 9));
  Send(WM_MOUSEMOVE, 0, At(-3, -4));
  EXPECT_THAT(Take(),
              ElementsAre("down 2 5,6", "up 2 5,7", "down 4 5,8", "up 4 5,9", "move -3,-4"));
}

TEST_F(HostWindow, APressOfTheLeftButtonBringsTheFocusFirst) {
  ::SetFocus(parent_.Handle());
  Take();
  Send(WM_LBUTTONDOWN, MK_LBUTTON, At(5, 6));
  EXPECT_THAT(Take(), ElementsAre("got focus", "down 1 5,6"));
  EXPECT_EQ(::GetFocus(), host_.Handle());
  ::SetFocus(parent_.Handle());
  EXPECT_THAT(Take(), ElementsAre("lost focus"));
}

TEST_F(HostWindow, TwoQuickPressesAreTwoPresses) {
  ::SetFocus(host_.Handle());
  Take();
  Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(5, 6));
  Send(WM_RBUTTONDBLCLK, MK_RBUTTON, At(5, 7));
  Send(WM_MBUTTONDBLCLK, MK_MBUTTON, At(5, 8));
  EXPECT_THAT(Take(), ElementsAre("down 1 5,6", "down 2 5,7", "down 4 5,8"));
}

TEST_F(HostWindow, TheSecondPressIsADoubleClickToAControlThatKnowsIt) {
  ::SetFocus(host_.Handle());
  Take();
  int doubleClicks = 0;
  host_.OnDoubleClick = [&] { ++doubleClicks; };
  Send(WM_LBUTTONDBLCLK, MK_LBUTTON, At(5, 6));
  Send(WM_RBUTTONDBLCLK, MK_RBUTTON, At(5, 7));
  EXPECT_EQ(doubleClicks, 1);
  EXPECT_THAT(Take(), ElementsAre("down 2 5,7"));
}

// Half a notch towards the user, at a place on the screen.
TEST_F(HostWindow, TheWheelIsToldInNotchesAtItsPlaceInTheControl) {
  POINT at{30, 40};
  ::ClientToScreen(host_.Handle(), &at);
  const auto turn = static_cast<WPARAM>(MAKELONG(0, static_cast<WORD>(-60)));
  Send(WM_MOUSEWHEEL, turn, At(at.x, at.y));  // nobody has a use for it
  double notches = 0;
  Point told;
  host_.OnMouseWheel = [&](double n, double x, double y) {
    notches = n;
    told = {static_cast<int>(x), static_cast<int>(y)};
  };
  Send(WM_MOUSEWHEEL, turn, At(at.x, at.y));
  EXPECT_EQ(notches, -0.5);
  EXPECT_EQ(told, (Point{30, 40}));
}

HCURSOR SystemCursor(const wchar_t* shape) {
  return ::LoadCursorW(nullptr, shape);
}

TEST_F(HostWindow, ThePointerIsWhatTheControlSays) {
  const LPARAM inside = MAKELONG(HTCLIENT, WM_MOUSEMOVE);
  const auto send = [&] {
    return ::SendMessageW(host_.Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(host_.Handle()),
                          inside);
  };
  PointerShape shape = PointerShape::Hand;
  host_.Pointer = [&] { return shape; };
  EXPECT_NE(send(), 0);
  EXPECT_EQ(::GetCursor(), SystemCursor(IDC_HAND));
  shape = PointerShape::Arrow;
  EXPECT_NE(send(), 0);
  EXPECT_EQ(::GetCursor(), SystemCursor(IDC_ARROW));
}

TEST_F(HostWindow, AlsoWhileItHasTheMouseThePointerIsWhatTheControlSays) {
  host_.Pointer = [] { return PointerShape::Hand; };
  host_.CaptureMouse();
  ::SetCursor(SystemCursor(IDC_ARROW));
  Send(WM_MOUSEMOVE, MK_LBUTTON, At(5, 6));
  EXPECT_EQ(::GetCursor(), SystemCursor(IDC_HAND));
  host_.ReleaseMouse();
}

TEST_F(HostWindow, ItsOwnReleaseIsNoLoss) {
  host_.CaptureMouse();
  EXPECT_EQ(::GetCapture(), host_.Handle());
  host_.CaptureMouse();
  host_.ReleaseMouse();
  EXPECT_EQ(::GetCapture(), nullptr);
  host_.ReleaseMouse();
  EXPECT_THAT(Take(), testing::Not(testing::Contains("capture lost")));
}

TEST_F(HostWindow, LosesTheMouseToAnotherWindowAndLeavesItThere) {
  host_.CaptureMouse();
  Take();
  ::SetCapture(parent_.Handle());
  EXPECT_THAT(Take(), ElementsAre("capture lost"));
  host_.ReleaseMouse();
  EXPECT_EQ(::GetCapture(), parent_.Handle());
  ::ReleaseCapture();
}

// As when a message box comes up over a drag.
TEST_F(HostWindow, LosesTheMouseWhenItIsDisabledOrHidden) {
  host_.CaptureMouse();
  Take();
  Send(WM_CANCELMODE);
  EXPECT_THAT(Take(), ElementsAre("capture lost"));
  host_.CaptureMouse();
  ::EnableWindow(parent_.Handle(), FALSE);
  ::EnableWindow(host_.Handle(), FALSE);
  EXPECT_THAT(Take(), testing::Contains("capture lost"));
  EXPECT_EQ(::GetCapture(), nullptr);
}

// --- Keys ---

TEST_F(HostWindow, TellsKeysByTheirCodes) {
  Take();
  Send(WM_KEYDOWN, VK_RIGHT);
  Send(WM_KEYUP, VK_RIGHT);
  Send(WM_KEYDOWN, VK_SPACE);
  EXPECT_THAT(Take(), ElementsAre("key down 39", "key up 39", "key down 32"));
}

TEST_F(HostWindow, AsksForTheKeysThatItsControlWants) {
  EXPECT_EQ(Send(WM_GETDLGCODE), 0);
  EXPECT_EQ(AskFor(WM_KEYDOWN, VK_LEFT), 0);
  host_.WantsKey = [](std::int16_t key) { return key == VK_LEFT || key == VK_RETURN; };
  EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTARROWS);
  EXPECT_NE(AskFor(WM_KEYDOWN, VK_RETURN) & DLGC_WANTMESSAGE, 0);
  EXPECT_EQ(AskFor(WM_KEYDOWN, VK_TAB) & DLGC_WANTMESSAGE, 0);
  EXPECT_EQ(AskFor(WM_KEYDOWN, VK_ESCAPE) & DLGC_WANTMESSAGE, 0);
  host_.WantsKey = [](std::int16_t key) { return key == VK_SPACE; };
  EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTCHARS);
}

TEST_F(HostWindow, InADialogTheWantedKeysArriveAndTheTabKeyMovesOn) {
  NativeControlHost next(::GetModuleHandleW(nullptr), parent_.Handle());
  next.Move(200, 20, 50, 50);
  host_.WantsKey = [](std::int16_t key) { return VK_LEFT <= key && key <= VK_DOWN; };
  ::SetFocus(host_.Handle());
  Take();
  const auto type = [&](WPARAM key) {
    MSG message{};
    message.hwnd = ::GetFocus();
    message.message = WM_KEYDOWN;
    message.wParam = key;
    if (!::IsDialogMessageW(parent_.Handle(), &message)) ::DispatchMessageW(&message);
  };
  type(VK_RIGHT);
  EXPECT_THAT(Take(), ElementsAre("key down 39"));
  EXPECT_EQ(::GetFocus(), host_.Handle());
  type(VK_TAB);
  EXPECT_EQ(::GetFocus(), next.Handle());
  type(VK_TAB);
  EXPECT_EQ(::GetFocus(), host_.Handle());
}

constexpr LPARAM kHeld = LPARAM{KF_REPEAT} << 16;  // the keyboard repeats the key

TEST_F(HostWindow, AHeldKeyIsRepeatedToADrawingAndIsOnePressOfAButton) {
  Take();
  Send(WM_KEYDOWN, VK_RETURN);
  Send(WM_KEYDOWN, VK_RETURN, kHeld);
  EXPECT_THAT(Take(), ElementsAre("key down 13", "key down 13"));
  host_.OnMnemonic = [] {};
  Send(WM_KEYDOWN, VK_RETURN);
  Send(WM_KEYDOWN, VK_RETURN, kHeld);
  EXPECT_THAT(Take(), ElementsAre("key down 13"));
}

TEST_F(HostWindow, TheLetterOfAButtonBringsTheFocusFirst) {
  ::SetFocus(parent_.Handle());
  Take();
  Send(BM_CLICK);
  EXPECT_THAT(Take(), IsEmpty()) << "it is no button";
  host_.OnMnemonic = [this] { Log("click"); };
  Send(BM_CLICK);
  EXPECT_THAT(Take(), ElementsAre("got focus", "click"));
}

// --- The wall ---

TEST_F(HostWindow, AControlThatCannotPaintItselfSaysWhyInItsPlace) {
  host_.OnPaint = [](Surface&) { throw std::runtime_error("No curves"); };
  PaintAll(host_.Handle());
  EXPECT_FALSE(::GetUpdateRect(host_.Handle(), nullptr, FALSE));
  const Picture shown = PixelsOf(host_.Handle());
  EXPECT_THAT(shown.pixels, testing::Not(testing::Each(shown.pixels.front())));
}

// What a message box says, once it is there; presses its button.
std::string ReadMessageBox(const wchar_t* title) {
  constexpr int kText = 0xFFFF;  // the identifier of a message box's text
  const auto end = std::chrono::steady_clock::now() + kDeadline;
  while (std::chrono::steady_clock::now() < end) {
    if (const HWND box = ::FindWindowW(L"#32770", title); box && ::IsWindowVisible(box)) {
      std::array<char, 200> text{};
      ::GetDlgItemTextA(box, kText, text.data(), static_cast<int>(text.size()));
      ::PostMessageW(box, WM_COMMAND, IDOK, 0);
      return text.data();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return "no message box";
}

TEST_F(HostWindow, NothingIsThrownThroughItsProcedure) {
  struct Case {
    std::function<void()> fail;
    const char* says;
  };
  for (const Case& c : {Case{[] { throw std::runtime_error("No key for you"); }, "No key for you"},
                        Case{[] { throw std::bad_alloc(); }, "Out of memory."},
                        Case{[] { throw 7; }, "Unexpected failure."}}) {
    host_.OnKeyDown = [&](std::int16_t) { c.fail(); };
    std::string said;
    std::thread reader([&] { said = ReadMessageBox(L"Error"); });
    EXPECT_NO_THROW(Send(WM_KEYDOWN, VK_RIGHT));
    reader.join();
    EXPECT_EQ(said, c.says);
  }
}

// --- Life ---

TEST_F(HostWindow, OutlivesItsParent) {
  parent_.Destroy();
  EXPECT_EQ(host_.Handle(), nullptr);
  EXPECT_EQ(host_.DrawNow(), nullptr);
  EXPECT_NO_THROW(host_.Invalidate());
  EXPECT_NO_THROW(host_.Move(1, 2, 3, 4));
  EXPECT_NO_THROW(host_.ReleaseMouse());
  EXPECT_FALSE(host_.Visible());
}

TEST(HostWindowLife, LeavesNothingBehind) {
  const ParentWindow parent;
  const HINSTANCE module = ::GetModuleHandleW(nullptr);
  const auto use = [&] {
    NativeControlHost host(module, parent.Handle());
    host.OnPaint = [](Surface& surface) { surface.FillArea({0, 0, 9, 9}, kRed); };
    host.Move(0, 0, 50, 50);
    PaintAll(host.Handle());
    host.DrawNow()->Line({0, 0}, {9, 9}, {});
    host.CaptureMouse();
  };
  use();
  const GuiObjects before = GuiObjects::Count();
  for (int i = 0; i < 50; ++i) use();
  EXPECT_EQ(GuiObjects::Count(), before);
  EXPECT_EQ(::GetCapture(), nullptr);
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  EXPECT_FALSE(::GetClassInfoExW(module, L"OrvikDrawnControl", &description));
}

TEST(HostWindowLife, WithoutAParentThereIsNone) {
  EXPECT_THROW(NativeControlHost(::GetModuleHandleW(nullptr), nullptr), std::system_error);
}

}  // namespace
}  // namespace orvik
