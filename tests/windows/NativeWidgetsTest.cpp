// The widgets on the system's controls keep the toolkit's promises.
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <future>
#include <thread>

#include "platform/win32/ChildWindow.h"
#include "platform/win32/Clipboard.h"
#include "platform/win32/GdiHandles.h"
#include "platform/win32/MenuKey.h"
#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "platform/win32/ShellFolder.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowState.h"

namespace orvik {
namespace {

// A window with one widget of each kind, and a menu.
class SmallDesign final : public FormDesign {
 public:
  std::span<const WidgetDesign> Widgets() const override {
    static constexpr std::array kRows = {
        WidgetDesign{"page", ""},
        WidgetDesign{"label", "page"},
        WidgetDesign{"text", "page"},
        WidgetDesign{"wrapped", "page", WidgetStyle::Wrapped},
        WidgetDesign{"list", "page"},
        WidgetDesign{"option", "page"},
        WidgetDesign{"mnuFile", ""},
        WidgetDesign{"mnuFile_Open", "mnuFile"},
        WidgetDesign{"mnuFile_Exit", "mnuFile", WidgetStyle::Separated},
        WidgetDesign{"mnuView", ""},
    };
    return kRows;
  }
  Size MinimumSize(const TextMeasures&) const override { return {200, 100}; }
  Size InitialSize(const TextMeasures&) const override { return {400, 300}; }
  std::vector<Placement> LayOut(Size inner, const TextMeasures&) const override {
    return {{"page", {0, 0, inner.width, inner.height}},
            {"text", {10, 10, 110, 32}},
            {"list", {10, 40, 110, 65}}};
  }
};

class NativeWidgets : public testing::Test {
 protected:
  NativeWidgets() {
    toolkit_.Design(design_);
    window_ = toolkit_.MakeWindow("Form1");
    page_ = toolkit_.MakePanel("page");
  }

  SmallDesign design_;
  NativeToolkit toolkit_{::GetModuleHandleW(nullptr)};
  std::unique_ptr<Window> window_;
  std::unique_ptr<Panel> page_;
};

TEST(WindowState, OfNoWindowEachReadsAsFalse) {
  EXPECT_FALSE(HasStyle(nullptr, WS_VISIBLE));
  EXPECT_FALSE(IsShown(nullptr));
  EXPECT_FALSE(IsEnabled(nullptr));
}

HWND HandleOf(const Widget& widget) {
  return dynamic_cast<const ChildWindow&>(widget).Handle();
}

const std::vector<std::string> kTexts = {
    "", "12.5", "M. Peña, P.E. 中文 \xF0\x9F\x8C\xA7", std::string(40000, 'x'), " a ", "a&b"};

TEST_F(NativeWidgets, ATextBoxKeepsAnyLine) {
  for (const char* name : {"text", "wrapped"}) {
    const auto box = toolkit_.MakeTextBox(name);
    for (const std::string& text : kTexts) {
      box->Text(text);
      EXPECT_EQ(box->Text(), text) << name << ": " << text.substr(0, 20);
    }
  }
}

TEST_F(NativeWidgets, OnlyAChangeOfTheTextIsTold) {
  for (const char* name : {"text", "wrapped"}) {
    const auto box = toolkit_.MakeTextBox(name);
    int changes = 0;
    box->OnChange = [&] { ++changes; };
    box->Text("1");
    box->Text("1");
    EXPECT_EQ(changes, 1) << name;
    box->Text("");
    box->Text("");
    EXPECT_EQ(changes, 2) << name;
    ::SendMessageW(HandleOf(*box), WM_CHAR, '7', 0);
    EXPECT_EQ(changes, 3) << name;
    EXPECT_EQ(box->Text(), "7") << name;
  }
}

TEST_F(NativeWidgets, AKeyHandlerReplacesAndSwallowsCharacters) {
  const auto box = toolkit_.MakeTextBox("text");
  box->OnKeyPress = [](std::int16_t& key) {
    if (key == 'a') key = 0;
    if (key == 'b') key = 0x4E2D;
  };
  for (const char c : {'a', 'b', 'c'}) {
    ::SendMessageW(HandleOf(*box), WM_CHAR, static_cast<WPARAM>(c), 0);
  }
  EXPECT_EQ(box->Text(), "中c");
}

TEST_F(NativeWidgets, ALockedTextBoxTakesNoKeysButTexts) {
  const auto box = toolkit_.MakeTextBox("text");
  EXPECT_FALSE(box->Locked());
  box->Locked(true);
  EXPECT_TRUE(box->Locked());
  ::SendMessageW(HandleOf(*box), WM_CHAR, '7', 0);
  EXPECT_EQ(box->Text(), "");
  box->Text("8");
  EXPECT_EQ(box->Text(), "8");
  box->Locked(false);
  ::SendMessageW(HandleOf(*box), WM_CHAR, '7', 0);
  EXPECT_EQ(box->Text(), "78");
}

TEST_F(NativeWidgets, PastedLinesBecomeOne) {
  const auto box = toolkit_.MakeTextBox("wrapped");
  std::string seen;
  box->OnChange = [&] { seen += box->Text() + "|"; };
  ::SendMessageW(HandleOf(*box), EM_REPLACESEL, TRUE,
                 reinterpret_cast<LPARAM>(L"one\r\ntwo\r\nthree"));
  EXPECT_EQ(box->Text(), "one two three");
  EXPECT_EQ(seen, "one two three|");
  ::SendMessageW(HandleOf(*box), WM_CHAR, '!', 0);
  EXPECT_EQ(box->Text(), "one two three!") << "the caret stays behind what was pasted";
}

TEST_F(NativeWidgets, AListTellsAnotherItemOnceAndStoresNoneForAnIndexOutside) {
  const auto list = toolkit_.MakeComboBox("list");
  int clicks = 0;
  list->OnClick = [&] { ++clicks; };
  for (const char* item : {"Tampa", "Niña", "Key West"}) list->AddItem(item);
  EXPECT_EQ(list->ListIndex(), -1);
  EXPECT_EQ(list->ListCount(), 3);
  EXPECT_EQ(list->List(1), "Niña");
  EXPECT_EQ(list->List(-1) + list->List(3), "");
  list->ListIndex(2);
  list->ListIndex(2);
  EXPECT_EQ(clicks, 1);
  list->ListIndex(7);
  EXPECT_EQ(list->ListIndex(), -1);
  EXPECT_EQ(clicks, 2);
  list->ListIndex(0);
  list->Clear();
  EXPECT_EQ(list->ListCount(), 0);
  EXPECT_EQ(list->ListIndex(), -1);
  EXPECT_EQ(clicks, 3) << "clearing raises nothing";
}

TEST_F(NativeWidgets, TheArrowKeysOfAClosedListChooseAndTheWheelDoesNot) {
  const auto list = toolkit_.MakeComboBox("list");
  for (const char* item : {"a", "b", "c"}) list->AddItem(item);
  list->ListIndex(0);
  int clicks = 0;
  list->OnClick = [&] { ++clicks; };
  ::SendMessageW(HandleOf(*list), WM_KEYDOWN, VK_DOWN, 0);
  EXPECT_EQ(list->ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
  ::SendMessageW(HandleOf(*list), WM_MOUSEWHEEL, static_cast<WPARAM>(-WHEEL_DELTA) << 16U, 0);
  EXPECT_EQ(list->ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(NativeWidgets, APanelTellsWhenItShows) {
  int shown = 0;
  page_->OnShow = [&] { ++shown; };
  page_->Visible(true);
  EXPECT_EQ(shown, 0) << "it was visible";
  page_->Visible(false);
  EXPECT_FALSE(page_->Visible());
  page_->Visible(true);
  page_->Visible(true);
  EXPECT_EQ(shown, 1);
}

TEST_F(NativeWidgets, WidgetsMayOutliveTheirWindow) {
  const auto box = toolkit_.MakeTextBox("text");
  const auto list = toolkit_.MakeComboBox("list");
  const auto option = toolkit_.MakeOptionButton("option");
  const auto label = toolkit_.MakeLabel("label");
  const auto host = toolkit_.MakeControlHost("chart");
  const auto item = toolkit_.MakeMenuItem("mnuFile");
  box->Text("7");
  window_.reset();
  box->Text("8");
  list->ListIndex(0);
  option->Value(true);
  label->Caption("x");
  host->Invalidate();
  item->Visible(false);
  EXPECT_EQ(box->Text(), "");
  EXPECT_EQ(list->ListIndex(), -1);
}

TEST_F(NativeWidgets, ATimerTicksUntilItIsStopped) {
  const auto timer = toolkit_.MakeTimer();
  int ticks = 0;
  timer->OnTick = [&] {
    if (++ticks == 2) timer->Stop();
  };
  EXPECT_FALSE(timer->Running());
  timer->Start(1);
  EXPECT_TRUE(timer->Running());
  MSG message{};
  while (timer->Running() && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
    ::DispatchMessageW(&message);
  }
  EXPECT_EQ(ticks, 2);
}

TEST(NativeToolkitOrder, AWidgetNeedsAWindowAndAWindowADesign) {
  NativeToolkit toolkit(::GetModuleHandleW(nullptr));
  EXPECT_THROW(toolkit.MakeLabel("label"), std::logic_error);
  EXPECT_THROW(toolkit.MakeWindow("Form1"), std::logic_error);
}

// --- Menu ---

TEST(MenuKey, IsReadFromTheCaption) {
  const struct {
    const char* caption;
    std::optional<MenuKey> key;
  } rows[] = {
      {"&Open...\tCtrl+O", MenuKey{'O', true, false, false}},
      {"Save &As\tCtrl+Shift+S", MenuKey{'S', true, true, false}},
      {"\tF5", MenuKey{VK_F5, false, false, false}},
      {"x\tF24", MenuKey{VK_F24, false, false, false}},
      {"x\tAlt+1", MenuKey{'1', false, false, true}},
      {"&Open...", std::nullopt},
      {"x\t", std::nullopt},
      {"x\tCtrl+", std::nullopt},
      {"x\tF25", std::nullopt},
      {"x\tF0", std::nullopt},
      {"x\tFx", std::nullopt},
      {"x\tctrl+o", std::nullopt},
  };
  for (const auto& row : rows) EXPECT_EQ(KeyOfCaption(row.caption), row.key) << row.caption;
}

TEST_F(NativeWidgets, TheMenuShowsTheVisibleItemsInTheDesignsOrder) {
  const auto view = toolkit_.MakeMenuItem("mnuView");
  const auto exit = toolkit_.MakeMenuItem("mnuFile_Exit");
  const auto file = toolkit_.MakeMenuItem("mnuFile");
  const auto open = toolkit_.MakeMenuItem("mnuFile_Open");
  const HWND handle = dynamic_cast<NativeWindow&>(*window_).Handle();
  dynamic_cast<NativeWindow&>(*window_).MenuBar()->Attach();
  file->Caption("&File");
  view->Caption("&View");
  const auto captions = [&] {
    std::string all;
    const HMENU bar = ::GetMenu(handle);
    for (int i = 0; i < ::GetMenuItemCount(bar); ++i) {
      wchar_t text[40]{};
      ::GetMenuStringW(bar, static_cast<UINT>(i), text, 40, MF_BYPOSITION);
      all +=
          Utf8FromWide(text) + "/" + std::to_string(::GetMenuItemCount(::GetSubMenu(bar, i))) + " ";
    }
    return all;
  };
  EXPECT_EQ(captions(), "&File/3 &View/0 ") << "two items and a line";
  open->Visible(false);
  EXPECT_EQ(captions(), "&File/1 &View/0 ") << "no line above the first item";
  file->Visible(false);
  EXPECT_EQ(captions(), "&View/0 ");
}

TEST_F(NativeWidgets, OnlyAnItemThatCanBeReachedRuns) {
  const auto file = toolkit_.MakeMenuItem("mnuFile");
  const auto open = toolkit_.MakeMenuItem("mnuFile_Open");
  const auto bar = dynamic_cast<NativeWindow&>(*window_).MenuBar();
  bar->Attach();
  const HMENU menu = ::GetMenu(dynamic_cast<NativeWindow&>(*window_).Handle());
  const auto command = static_cast<WORD>(::GetMenuItemID(::GetSubMenu(menu, 0), 0));
  int clicks = 0;
  open->OnClick = [&] { ++clicks; };
  EXPECT_TRUE(bar->Run(command));
  EXPECT_EQ(clicks, 1);
  open->Enabled(false);
  EXPECT_FALSE(bar->Run(command)) << "grey";
  open->Enabled(true);
  open->Visible(false);
  EXPECT_FALSE(bar->Run(command)) << "hidden";
  open->Visible(true);
  file->Visible(false);
  EXPECT_FALSE(bar->Run(command)) << "in a hidden menu";
  EXPECT_EQ(clicks, 1);
}

// --- Colours of the system ---

// Changes one for the time of a test.
class SystemColour {
 public:
  SystemColour(int index, COLORREF colour) : index_(index), before_(::GetSysColor(index)) {
    Set(colour);
  }
  ~SystemColour() { Set(before_); }
  SystemColour(const SystemColour&) = delete;
  SystemColour& operator=(const SystemColour&) = delete;

 private:
  void Set(COLORREF colour) const { ::SetSysColors(1, &index_, &colour); }

  int index_;
  COLORREF before_;
};

TEST_F(NativeWidgets, FieldsFollowTheSystemsColours) {
  const auto box = toolkit_.MakeTextBox("text");
  const SystemColour window(COLOR_WINDOW, RGB(1, 2, 3));
  ::SendMessageW(dynamic_cast<NativeWindow&>(*window_).Handle(), WM_SYSCOLORCHANGE, 0, 0);
  const WindowDc dc(HandleOf(*box));
  const LRESULT answer =
      ::SendMessageW(::GetParent(HandleOf(*box)), WM_CTLCOLOREDIT,
                     reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(HandleOf(*box)));
  LOGBRUSH brush{};
  ASSERT_NE(::GetObjectW(reinterpret_cast<HGDIOBJ>(answer), sizeof brush, &brush), 0);
  EXPECT_EQ(brush.lbColor, RGB(1, 2, 3));
}

// --- Desktop ---

// Another thread's window has the clipboard open, from its making on until it is told to go.
class ClipboardHolder {
 public:
  explicit ClipboardHolder(std::chrono::milliseconds atMost) {
    thread_ = std::thread([this, atMost] { Hold(atMost); });
    isOpen_.get_future().wait();
  }
  ~ClipboardHolder() {
    isReleased_.set_value();
    thread_.join();
  }
  ClipboardHolder(const ClipboardHolder&) = delete;
  ClipboardHolder& operator=(const ClipboardHolder&) = delete;

 private:
  void Hold(std::chrono::milliseconds atMost) {
    const HWND owner = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                         nullptr, nullptr);
    EXPECT_TRUE(::OpenClipboard(owner));
    isOpen_.set_value();
    isReleased_.get_future().wait_for(atMost);
    ::CloseClipboard();
    ::DestroyWindow(owner);
  }

  std::promise<void> isOpen_;
  std::promise<void> isReleased_;
  std::thread thread_;
};

const ClipboardContent kSmallContent{"text", {4, 4}, [](Surface&) {}};

TEST(NativeDesktopClipboard, IsWaitedForAMoment) {
  const ClipboardHolder holder(std::chrono::milliseconds(40));
  EXPECT_TRUE(PutOnClipboard(kSmallContent));
}

TEST(NativeDesktopClipboard, IsGivenUpWhereAnotherKeepsIt) {
  const ClipboardHolder holder(std::chrono::seconds(20));
  EXPECT_FALSE(PutOnClipboard(kSmallContent));
}

TEST(NativeDesktopFolder, TheDocumentsFolderIsThere) {
  const auto folder = ShellDocumentsFolder();
  ASSERT_TRUE(folder);
  const DWORD attributes = ::GetFileAttributesW(WideFromUtf8(*folder).c_str());
  ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES) << *folder;
  EXPECT_NE(attributes & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

TEST(NativeDesktopPage, AFileThatIsNotThereHasNoProgram) {
  NativeDesktop desktop(::GetModuleHandleW(nullptr));
  EXPECT_EQ(desktop.OpenPage("C:\\no such folder\\Topic001.htm"), PageOpening::NoProgram);
  EXPECT_EQ(desktop.OpenPage("C:\\中\\Topic001.htm"), PageOpening::NoProgram);
}

TEST(NativeDesktopDate, TodayIsACalendarDate) {
  const CalendarDate today = NativeDesktop(::GetModuleHandleW(nullptr)).Today();
  EXPECT_GE(today.year, 2024);
  EXPECT_TRUE(1 <= today.month && today.month <= 12);
  EXPECT_TRUE(1 <= today.day && today.day <= 31);
}

}  // namespace
}  // namespace orvik
