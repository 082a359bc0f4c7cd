// Files, leaving, clipboard and the host's window: the main window among other windows.
#include <gtest/gtest.h>
#include <ole2.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstring>
#include <optional>

#include "FormOnScreen.h"
#include "platform/win32/WideText.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::FormOnScreen;

constexpr std::int16_t kUnset = 7;  // a return code that no way of leaving gives

// --- Files ---

TEST(MainWindowFiles, OpensAndSavesThroughTheRealDialogs) {
  FormOnScreen form(1);
  const std::string path = form.Folder().Write("pond.kav", test::ProjectText());
  form.Press({'O', {VK_CONTROL}});
  form.AnswerDialog(IDOK, path);
  ASSERT_TRUE(form.UntilText("txtBasinArea", "10"));
  EXPECT_TRUE(form.Until([&] { return form.Caption() == "ORVIK 3.3 KAV - pond.kav"; }));
  form.Type("txtBasinArea", "12");
  const std::string copy = form.Folder() / "copy.kav";
  form.ClickMenu("mnuFile_SaveAs");
  form.AnswerDialog(IDOK, copy);
  ASSERT_TRUE(form.Until([&] { return form.Caption() == "ORVIK 3.3 KAV - copy.kav"; }));
  EXPECT_NE(test::ReadBytes(copy).find("\r\n12\r\n"), std::string::npos);
  form.Type("txtBasinArea", "13");
  form.Press({'S', {VK_CONTROL}});
  form.Press({'1', {VK_CONTROL}});  // once the page turns, the key before it is through
  ASSERT_TRUE(form.Until([&] { return form.IsVisible("picProject"); }));
  EXPECT_NE(test::ReadBytes(copy).find("\r\n13\r\n"), std::string::npos);
  EXPECT_EQ(test::ReadBytes(path), test::ProjectText());
}

// The project solves for the storage of E = 60 % and 0.875 in/week: R = 0.125 in/day, ln V = 1,
// S = e x 5 / 12 = 1.1326 ac-ft. Solved for the reuse rate, its numbers are E and S.
TEST(MainWindowFiles, SavingOverAnOpenListWritesTheNumbersOfTheItemThatItMarks) {
  FormOnScreen form(1);
  const std::string path = form.Folder().Write("pond.kav", test::ProjectText());
  form.Press({'O', {VK_CONTROL}});
  form.AnswerDialog(IDOK, path);
  ASSERT_TRUE(form.Until([&] { return form.Text("txtSolveFor(3)").starts_with("1.13"); }));
  form.DropDown("cmbSolveFor");
  form.Press({VK_DOWN, {}});
  form.Press({'S', {VK_CONTROL}});
  form.Press({'1', {VK_CONTROL}});  // once the page turns, the key before it is through
  ASSERT_TRUE(form.Until([&] { return form.IsVisible("picProject"); }));
  const auto lines = test::Lines(test::ReadBytes(path));
  ASSERT_EQ(lines.size(), test::kTailLine + 2);
  EXPECT_EQ(lines[test::kModeLine], "3");
  EXPECT_EQ(lines[test::kTailLine], "60");
  EXPECT_TRUE(lines[test::kTailLine + 1].starts_with("1.13")) << lines[test::kTailLine + 1];
}

TEST(MainWindowFiles, ACancelledDialogChangesNothing) {
  FormOnScreen form(1);
  form.Type("txtBasinArea", "7");
  const std::string caption = form.Caption();
  for (const char* command : {"mnuFile_Open", "mnuFile_SaveAs", "mnuFile_Save"}) {
    form.ClickMenu(command);
    form.AnswerDialog(IDCANCEL);
    ASSERT_TRUE(form.Until([&] { return !form.Dialog() && ::IsWindowEnabled(form.Window()); }));
    EXPECT_EQ(form.Text("txtBasinArea"), "7") << command;
    EXPECT_EQ(form.Caption(), caption) << command;
  }
}

TEST(MainWindowFiles, ADamagedFileIsReported) {
  FormOnScreen form(1);
  const std::string path = form.Folder().Write("bad.kav", "KAV3.3.01\r\nno more");
  form.ClickMenu("mnuFile_Open");
  form.AnswerDialog(IDOK, path);
  ASSERT_TRUE(form.Until([&] {
    const HWND box = form.Dialog();
    return box && test::TextOf(box) == "Error";
  }));
  form.AnswerDialog(IDOK);
  EXPECT_TRUE(form.Until([&] { return form.Caption() == "ORVIK 3.3 KAV - bad.kav"; }));
}

TEST(MainWindowFiles, NewClears) {
  FormOnScreen form(1);
  form.Type("txtBasinArea", "7");
  form.Press({'N', {VK_CONTROL}});
  EXPECT_TRUE(form.UntilText("txtBasinArea", ""));
  EXPECT_EQ(form.Caption(), "ORVIK 3.3 Stormwater Harvesting - [untitled]");
}

TEST(MainWindowFiles, NewIsNoCommandInAHostProject) {
  FormOnScreen form(2);
  form.Type("txtBasinArea", "7");
  form.Press({'N', {VK_CONTROL}});
  form.ClickMenu("mnuFile_New");  // as another program may
  form.Press({VK_F5, {}});        // a key that works, to know when the other one is through
  EXPECT_TRUE(form.UntilText("txtErrMsg", "The runoff coefficient has not been defined."));
  EXPECT_EQ(form.Text("txtBasinArea"), "7");
}

// A file as the desktop drops it: a list of names after a header.
HGLOBAL DroppedFile(const std::string& path) {
  const std::wstring name = WideFromUtf8(path);
  const std::size_t bytes = sizeof(DROPFILES) + (name.size() + 2) * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GHND, bytes);
  auto* header = static_cast<DROPFILES*>(::GlobalLock(memory));
  header->pFiles = sizeof(DROPFILES);
  header->fWide = TRUE;
  std::memcpy(header + 1, name.c_str(), name.size() * sizeof(wchar_t));
  ::GlobalUnlock(memory);
  return memory;
}

TEST(MainWindowFiles, ADroppedProjectIsOpened) {
  FormOnScreen form(1);
  const std::string path = form.Folder().Write("dropped.kav", test::ProjectText());
  EXPECT_NE(::GetWindowLongPtrW(form.Window(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
  ::PostMessageW(form.Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(DroppedFile(path)), 0);
  EXPECT_TRUE(form.UntilText("txtBasinArea", "10"));
  EXPECT_TRUE(form.Until([&] { return form.Caption() == "ORVIK 3.3 KAV - dropped.kav"; }));
}

TEST(MainWindowFiles, AFileThatIsDroppedUnderABoxIsRefusedAndLetGo) {
  FormOnScreen form(1);
  const std::string path = form.Folder().Write("dropped.kav", test::ProjectText());
  const HGLOBAL drop = DroppedFile(path);
  ::EnableWindow(form.Window(), FALSE);
  ::SendMessageW(form.Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
  ::EnableWindow(form.Window(), TRUE);
  EXPECT_EQ(form.Text("txtBasinArea"), "");
  EXPECT_EQ(::GlobalFlags(drop), static_cast<UINT>(GMEM_INVALID_HANDLE));
}

// --- Leaving ---

TEST(MainWindowLeaving, TheCloseBoxAsksAHostsUser) {
  const struct {
    int answer;
    int code;
  } rows[] = {{IDYES, 1}, {IDNO, 0}};
  for (const auto& row : rows) {
    FormOnScreen form(2, {[](Form1& opened) { opened.ReturnCode(kUnset); }, {}});
    form.CloseByFrame();
    ASSERT_TRUE(form.Until([&] { return form.Dialog() != nullptr; }));
    EXPECT_EQ(test::TextOf(form.Dialog()), "Exit Stormwater Harvesting");
    form.CloseByFrame();  // the question has to be answered first
    form.AnswerDialog(row.answer);
    EXPECT_EQ(form.Leave(), row.code);
  }
}

TEST(MainWindowLeaving, StandAloneTheCloseBoxAsksNothing) {
  FormOnScreen form(1, {[](Form1& opened) { opened.ReturnCode(kUnset); }, {}});
  form.CloseByFrame();
  EXPECT_EQ(form.Leave(), kUnset);
}

TEST(MainWindowLeaving, ExitButtonsAndReturnMenuLeave) {
  const struct {
    const char* command;
    int code;
  } rows[] = {
      {"cmdSaveExit", 1}, {"cmdDiscardExit", 0}, {"mnuReturn_Save", 1}, {"mnuReturn_Discard", 0}};
  for (const auto& row : rows) {
    FormOnScreen form(2, {[](Form1& opened) { opened.ReturnCode(kUnset); }, {}});
    std::string_view(row.command).starts_with("cmd") ? form.Click(row.command)
                                                     : form.ClickMenu(row.command);
    EXPECT_EQ(form.Leave(), row.code) << row.command;
  }
}

TEST(MainWindowLeaving, MenuAndMnemonicSolveForWhatWasTypedLast) {
  for (const bool byMenu : {true, false}) {
    std::string V;
    FormOnScreen form(2, {{}, [&](Form1& left) { V = left.Fields().Box(Field::V).Text(); }});
    form.Choose("cmbClimateStation", "Tampa");
    form.Choose("cmbSolveFor", "Efficiency");
    form.Type("txtBasinArea", "10");
    form.Type("txtRunoffCoefficient", "0.5");
    form.Type("txtIrrigationArea", "5");
    form.Type("txtSolveFor(2)", "0.91");
    form.Type("txtSolveFor(1)", "1.25");
    byMenu ? form.ClickMenu("mnuReturn_Save") : form.Press({'S', {VK_MENU}});
    EXPECT_EQ(form.Leave(), 1) << byMenu;
    EXPECT_EQ(V, "3") << byMenu;  // 1.25 ac-ft x 12 / 5 ac
  }
}

TEST(MainWindowLeaving, AThreadThatIsToldToEndEnds) {
  FormOnScreen form(2);
  ::PostThreadMessageW(form.Thread(), WM_QUIT, 0, 0);
  EXPECT_EQ(form.Leave(), 0);
}

// --- The host's window ---

class HostWindow {
 public:
  HostWindow() {
    frame = ::CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300,
                              200, nullptr, nullptr, nullptr, nullptr);
    field = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, frame, nullptr,
                              nullptr, nullptr);
    ::SetForegroundWindow(frame);
    ::SetFocus(field);
  }
  HWND frame = nullptr;
  HWND field = nullptr;
};

TEST(MainWindowHost, IsDisabledMeanwhileAndGetsItsFocusBack) {
  std::optional<HostWindow> host;
  HWND focusAfter = nullptr;
  bool isEnabledAfter = false;
  {
    FormOnScreen form(2, {[&](Form1&) { host.emplace(); },
                          [&](Form1&) {
                            isEnabledAfter = ::IsWindowEnabled(host->frame) != FALSE;
                            focusAfter = ::GetFocus();
                            ::DestroyWindow(host->frame);
                          }});
    EXPECT_FALSE(::IsWindowEnabled(host->frame));
    EXPECT_EQ(::GetWindow(form.Window(), GW_OWNER), host->frame);
    form.Click("cmdDiscardExit");
    EXPECT_EQ(form.Leave(), 0);
  }
  EXPECT_TRUE(isEnabledAfter);
  EXPECT_EQ(focusAfter, host->field);
}

TEST(MainWindowHost, ACallWhileTheWindowIsOpenIsRefused) {
  bool isRefused = false;
  Form1* opened = nullptr;
  FormOnScreen form(2, {[&](Form1& made) {
                          opened = &made;
                          made.Fields().Box(Field::BasinArea).OnChange = [&] {
                            try {
                              opened->ShowModally();
                            } catch (const std::logic_error&) {
                              isRefused = true;
                            }
                          };
                        },
                        {}});
  form.Type("txtBasinArea", "1");
  form.Click("cmdDiscardExit");
  EXPECT_EQ(form.Leave(), 0);
  EXPECT_TRUE(isRefused);
}

// --- Clipboard ---

TEST(MainWindowClipboard, TheChartIsCopiedAsPicturesAndText) {
  FormOnScreen form(1);
  form.Choose("cmbClimateStation", "Tampa");
  RECT inner{};
  ::GetClientRect(form.Find("ctrlStormwaterReuse1"), &inner);
  const POINT point{inner.right / 2, inner.bottom * 5 / 8};  // among the curves
  form.Drag("ctrlStormwaterReuse1", point, point);
  ASSERT_TRUE(form.Until([&] { return !form.Text("txtE").empty(); }));
  form.Press({'C', {VK_CONTROL}});
  const std::string expected = "R (in/day)\tV (in)\tE (%)\r\n" + form.Text("txtR") + "\t" +
                               form.Text("txtV") + "\t" + form.Text("txtE") + "\r\n";
  EXPECT_TRUE(form.Until([&] { return test::ClipboardText() == expected; }))
      << test::ClipboardText();
  EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
  EXPECT_TRUE(::IsClipboardFormatAvailable(CF_BITMAP));
}

TEST(MainWindowClipboard, InAFieldTheKeyCopiesItsText) {
  FormOnScreen form(1);
  form.Type("txtBasinArea", "123.5");
  form.Press({'A', {VK_CONTROL}});
  form.Press({'C', {VK_CONTROL}});
  EXPECT_TRUE(form.Until([&] { return test::ClipboardText() == "123.5"; }));
}

}  // namespace
}  // namespace orvik
