// The station map and the about box over their lives: opened and closed many times.
#include <gtest/gtest.h>
#include <ole2.h>

#include <string>

#include "GuiObjects.h"
#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "shell/frmAbout.h"
#include "shell/frmClimateStations.h"

namespace orvik {
namespace {

using test::GuiObjects;

struct Held {
  GuiObjects objects;
  DWORD handles = 0;
};

Held Count() {
  Held held{GuiObjects::Count(), 0};
  ::GetProcessHandleCount(::GetCurrentProcess(), &held.handles);
  return held;
}

// Shows the form and closes it once it is painted.
template <typename Form, typename... Arguments>
void OpenAndClose(Arguments&... arguments) {
  NativeToolkit toolkit(::GetModuleHandleW(nullptr));
  Form form(toolkit, arguments...);
  const auto closing = toolkit.MakeTimer();
  closing->OnTick = [] {
    const HWND window = ::GetActiveWindow();
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
  };
  closing->Start(1);
  form.ShowModally();
}

TEST(SmallWindowsLife, ManyOpeningsLeaveNothingBehind) {
  ASSERT_TRUE(SUCCEEDED(::OleInitialize(nullptr)));
  NativeDesktop desktop(::GetModuleHandleW(nullptr));
  const std::string folder = ORVIK_DATA;
  const auto openBoth = [&](int times) {
    for (int i = 0; i < times; ++i) {
      OpenAndClose<frmClimateStations>(desktop, folder);
      OpenAndClose<frmAbout>();
    }
  };
  openBoth(5);
  const Held before = Count();
  openBoth(40);
  const Held after = Count();
  EXPECT_LE(after.objects.drawing, before.objects.drawing);
  EXPECT_LE(after.objects.windows, before.objects.windows);
  EXPECT_LE(after.objects.menus, before.objects.menus);
  EXPECT_LE(after.handles, before.handles);
  ::OleUninitialize();
}

}  // namespace
}  // namespace orvik
