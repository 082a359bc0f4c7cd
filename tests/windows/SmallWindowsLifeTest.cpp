// The station map and the about box over their lives: opened and closed many times, and looked at.
#include <gtest/gtest.h>
#include <ole2.h>

#include <filesystem>

#include "FormOnScreen.h"
#include "GuiObjects.h"
#include "Listener.h"
#include "ScaledWindow.h"
#include "base/Paths.h"
#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "shell/AboutDesign.h"
#include "shell/ClimateStationsDesign.h"
#include "shell/frmAbout.h"
#include "shell/frmClimateStations.h"

namespace orvik {
namespace {

using test::FormOnScreen;
using test::FormUser;
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

// --- Pictures ---

std::string PictureFolder() {
  const std::string folder = ORVIK_SCREENSHOTS;
  std::filesystem::create_directories(PathFromUtf8(folder));
  return folder;
}

// Left for a look at them, at two scalings.
void TakePictures(const FormUser& user, const std::string& name, SIZE sizeAtFull) {
  for (const int dpi : {96, 144}) {
    test::ComeToScaling(user.Window(), dpi, {sizeAtFull.cx * dpi / 96, sizeAtFull.cy * dpi / 96});
    test::WaitUntilPainted(user);
    const std::string path = PictureFolder() + name + "-" + std::to_string(dpi * 100 / 96) + ".png";
    std::filesystem::remove(PathFromUtf8(path));
    test::Screenshot(user.Window(), path);
    EXPECT_TRUE(FileExists(path));
  }
}

SIZE SizeOf(HWND window) {
  RECT outer{};
  ::GetWindowRect(window, &outer);
  return {outer.right - outer.left, outer.bottom - outer.top};
}

TEST(SmallWindowsPicture, IsTakenOfTheMapAndOfTheAboutBox) {
  const test::ClientThread com;
  FormOnScreen form(1);
  std::filesystem::create_directories(PathFromUtf8(form.Folder() / "Help"));
  std::filesystem::copy_file(PathFromUtf8(StationMapPath(ORVIK_DATA)),
                             PathFromUtf8(StationMapPath(form.Folder().Path())));
  form.Click("cmdMap");
  FormUser map = form.WaitForWindow("Climate stations", ClimateStationsDesign::Get());
  TakePictures(map, "map", SizeOf(map.Window()));
  test::ComeToScaling(map.Window(), 96, {820, 740});
  const std::string fitted = map.Text("ctrlPictureViewer1");
  map.TurnWheel("ctrlPictureViewer1", {560, 420}, 5);
  EXPECT_TRUE(map.Until([&] { return map.Text("ctrlPictureViewer1") != fitted; }));
  map.Press({VK_RIGHT, {}});
  test::WaitUntilPainted(map);
  test::Screenshot(map.Window(), PictureFolder() + "map-zoomed.png");
  map.Press({VK_ESCAPE, {}});
  ASSERT_TRUE(form.UntilBack());
  form.ClickMenu("mnuHelp_About");
  const FormUser about = form.WaitForWindow("About this module", AboutDesign::Get());
  TakePictures(about, "about", SizeOf(about.Window()));
}

}  // namespace
}  // namespace orvik
