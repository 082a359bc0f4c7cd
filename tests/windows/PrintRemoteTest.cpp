// Print_Remote of the built library, on the print server of scripts/with-printer: a job comes out,
// and at no time is a window to be seen.
#include <StReuse.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>

#include "entry/com/Bstr.h"
#include "entry/com/Variant.h"
#include "support/ProjectText.h"
#include "support/TempFolder.h"
#include "windows/FormUser.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

using com::Bstr;
using com::Variant;

constexpr std::chrono::seconds kDeadline{60};

// This program's first window that can be seen; null for none.
HWND VisibleWindow() {
  HWND found = nullptr;
  ::EnumWindows(
      [](HWND window, LPARAM place) -> BOOL {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process != ::GetCurrentProcessId() || !::IsWindowVisible(window)) return TRUE;
        *reinterpret_cast<HWND*>(place) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

// Looks for windows all the time while it lives.
class Watch {
 public:
  Watch()
      : thread_([this] {
          while (!ends_) {
            if (VisibleWindow()) seen_ = true;
            ::Sleep(1);
          }
        }) {}
  ~Watch() {
    ends_ = true;
    thread_.join();
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  bool HasSeenAWindow() const { return seen_; }

 private:
  std::atomic<bool> ends_ = false;
  std::atomic<bool> seen_ = false;
  std::thread thread_;
};

std::size_t PrintedWithTitle(const std::string& title) {
  const std::filesystem::path folder = std::string("Z:") + std::getenv("PRINTED");
  return static_cast<std::size_t>(
      std::ranges::count_if(std::filesystem::directory_iterator(folder), [&](const auto& entry) {
        return entry.path().extension() == ".pdf" &&
               ReadBytes(entry.path().string()).find("/Title(" + title + ")") != std::string::npos;
      }));
}

bool ArePrintedSoon(const std::string& title, std::size_t count) {
  const auto deadline = std::chrono::steady_clock::now() + kDeadline;
  while (PrintedWithTitle(title) < count && std::chrono::steady_clock::now() < deadline) {
    ::Sleep(20);
  }
  return PrintedWithTitle(title) == count;
}

class PrintRemote : public testing::Test {
 protected:
  PrintRemote() : reuse_(Create()) {}

  ComPtr<IclsStReuse> Create() {
    ComPtr<IClassFactory> factory;
    ComPtr<IclsStReuse> reuse;
    server_.GetClassObject(__uuidof(clsStReuse), IID_IClassFactory, factory.OutVoid());
    if (factory) factory->CreateInstance(nullptr, __uuidof(IclsStReuse), reuse.OutVoid());
    return reuse;
  }

  // A project of this name in a mode whose tail is given.
  static std::string Project(const std::string& name, const std::string& mode,
                             const std::vector<std::string>& tail) {
    auto lines = ProjectLines(mode, tail);
    lines[test::kProjectNameLine] = name;
    return ProjectText(lines);
  }

  HRESULT Print(const std::string& text, short mode = 1) {
    const Variant defaultPrinter;
    return reuse_->Print_Remote(*defaultPrinter.Get(), mode, Bstr(std::string_view()).Get(),
                                Bstr(text).Get());
  }

  // Shows the window, and closes it as the user would as soon as it is there.
  HRESULT ShowAndClose() {
    std::thread user([] {
      const auto deadline = std::chrono::steady_clock::now() + kDeadline;
      HWND window = nullptr;
      while (!window && std::chrono::steady_clock::now() < deadline) {
        window = VisibleWindow();
        ::Sleep(10);
      }
      if (window) ::PostMessageW(window, WM_CLOSE, 0, 0);
    });
    Bstr texts[3];
    short result = 0;
    const HRESULT shown = reuse_->Show(1, texts[0].Out(), texts[1].Out(), texts[2].Out(), &result);
    user.join();
    return shown;
  }

  Apartment apartment_;
  LoadedServer server_;
  ComPtr<IclsStReuse> reuse_;
};

TEST_F(PrintRemote, PrintsInEveryModeWithoutAWindow) {
  ASSERT_TRUE(reuse_);
  const Watch watch;
  EXPECT_EQ(Print(Project("Interactive pond", "0", {"1", "0.2", "3"}), 1), S_OK);
  EXPECT_EQ(Print(Project("Efficient pond", "1", {"1.25", "0.875"}), 2), S_OK);
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Interactive pond", 1));
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Efficient pond", 1));
  EXPECT_FALSE(watch.HasSeenAWindow());
}

TEST_F(PrintRemote, PrintsTwiceWhenAskedTwice) {
  ASSERT_TRUE(reuse_);
  const std::string text = Project("Twice", "2", {"60", "0.875"});
  EXPECT_EQ(Print(text), S_OK);
  EXPECT_EQ(Print(text), S_OK);
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Twice", 2));
}

TEST_F(PrintRemote, WithoutATextPrintsTheEmptyReportAndNotTheOneBefore) {
  ASSERT_TRUE(reuse_);
  const Watch watch;
  const std::size_t emptyReports = PrintedWithTitle("Stormwater Harvesting Report");
  EXPECT_EQ(Print(Project("The one before", "1", {"1.25", "0.875"})), S_OK);
  EXPECT_EQ(Print(""), S_OK);
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report", emptyReports + 1));
  EXPECT_EQ(PrintedWithTitle("Stormwater Harvesting Report - The one before"), 1U);
  EXPECT_FALSE(watch.HasSeenAWindow());
}

// The text ends after its twelfth line, so that even its name has been read.
TEST_F(PrintRemote, TellsOfATextThatBreaksOffAndPrintsTheEmptyReport) {
  ASSERT_TRUE(reuse_);
  auto lines = ProjectLines();
  lines[2] = "Broken off";
  lines.resize(12);
  const std::size_t emptyReports = PrintedWithTitle("Stormwater Harvesting Report");
  std::string told;
  std::thread user([&] { told = ReadMessage("Error"); });
  const HRESULT printed = Print(ProjectText(lines));
  user.join();
  EXPECT_EQ(printed, S_OK);
  EXPECT_EQ(told, "Error reading data.");
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report", emptyReports + 1));
  EXPECT_EQ(PrintedWithTitle("Stormwater Harvesting Report - Broken off"), 0U);
}

TEST_F(PrintRemote, WorksBeforeAndAfterShow) {
  ASSERT_TRUE(reuse_);
  EXPECT_EQ(Print(Project("Before", "1", {"1.25", "0.875"})), S_OK);
  EXPECT_EQ(ShowAndClose(), S_OK);
  const Watch watch;
  EXPECT_EQ(Print(Project("After", "1", {"1.25", "0.875"})), S_OK);
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Before", 1));
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - After", 1));
  EXPECT_FALSE(watch.HasSeenAWindow());
}

// --- Threads ---

// A host's worker thread ends without letting go of the object that it printed with.
TEST_F(PrintRemote, AThreadThatIsGoneBlocksNoOther) {
  ASSERT_TRUE(reuse_);
  HRESULT printed = E_FAIL;
  std::thread([&] {
    const Apartment apartment;
    printed = Print(Project("Of a thread that is gone", "1", {"1.25", "0.875"}));
  }).join();
  EXPECT_EQ(printed, S_OK);
  EXPECT_EQ(Print(Project("Of the next thread", "1", {"1.25", "0.875"})), S_OK);
  EXPECT_EQ(ShowAndClose(), S_OK);
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Of a thread that is gone", 1));
  EXPECT_TRUE(ArePrintedSoon("Stormwater Harvesting Report - Of the next thread", 1));
}

TEST_F(PrintRemote, AThreadThatStillRunsKeepsItsWindow) {
  ASSERT_TRUE(reuse_);
  EXPECT_EQ(Print(Project("Of this thread", "1", {"1.25", "0.875"})), S_OK);
  HRESULT refused = S_OK;
  std::thread([&] {
    const Apartment apartment;
    refused = Print(Project("Of another thread", "1", {"1.25", "0.875"}));
  }).join();
  EXPECT_EQ(refused, RPC_E_WRONG_THREAD);
}

// This thread's window that no one can see, which the reports are printed from.
HWND HiddenForm() {
  HWND found = nullptr;
  ::EnumThreadWindows(
      ::GetCurrentThreadId(),
      [](HWND window, LPARAM place) -> BOOL {
        wchar_t name[64] = L"";
        ::GetClassNameW(window, name, 64);
        if (std::wstring_view(name) == L"OrvikForm") *reinterpret_cast<HWND*>(place) = window;
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

TEST_F(PrintRemote, AnObjectThatGoesLeavesTheWindowToTheOtherThatPrintedFromIt) {
  ASSERT_TRUE(reuse_);
  EXPECT_EQ(Print(Project("First object", "1", {"1.25", "0.875"})), S_OK);
  auto first = std::exchange(reuse_, Create());
  EXPECT_EQ(Print(Project("Second object", "1", {"1.25", "0.875"})), S_OK);
  const HWND window = HiddenForm();
  ASSERT_NE(window, nullptr);
  first.Reset();
  EXPECT_EQ(HiddenForm(), window);
  reuse_.Reset();
  EXPECT_EQ(HiddenForm(), nullptr);
}

}  // namespace
}  // namespace orvik::test
