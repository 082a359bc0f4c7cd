// A compiled host opens the window through the registered class, and a user works it.
#include <StReuse.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "ParentWindow.h"
#include "ShownByHost.h"
#include "base/BuildVersion.h"
#include "entry/com/Module.h"
#include "shell/AboutDesign.h"
#include "shell/ClimateStationsDesign.h"
#include "support/KavRun.h"
#include "support/ProjectText.h"
#include "support/TempFolder.h"
#include "windows/RegisteredLibrary.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

[[maybe_unused]] const testing::Environment* const kLibrary =
    testing::AddGlobalTestEnvironment(new RegisteredLibrary);

class ShowTest : public testing::Test {
 protected:
  ShowTest() {
    ::CoCreateInstance(__uuidof(::clsStReuse), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsStReuse),
                       entry_.OutVoid());
  }

  // Shows the window in mode 2 and expects this return code.
  void ExpectShown(short code, const std::function<void(FormUser& user)>& work, short mode = 2) {
    const Shown shown = ShowToUser(*entry_.Get(), mode, texts_, work);
    EXPECT_EQ(shown.userFailure, "");
    EXPECT_EQ(shown.result, S_OK);
    EXPECT_EQ(shown.code, code);
  }

  // What the command line makes of the project text that the host got back: to the letter the
  // results that it got with it.
  void ExpectResultsOfCommandLine() {
    const std::string path = folder_.Write("returned.kav", texts_.third);
    const auto run = RunKavWith({"calc", path, "--json"}, "./");
    const auto fields = nlohmann::json::parse(run.out);
    const std::string rate = fields["ReuseRate"];
    const std::string mode = fields["cmbSolveFor"];
    const int efficiency = mode == "Interactive" ? 2 : mode == "Efficiency" ? 3 : 1;
    const int storage = mode == "Efficiency" ? 1 : mode == "Reuse Rate" ? 2 : 3;
    EXPECT_EQ(texts_.second,
              rate + "\r\n" +
                  std::string(fields["txtSolveFor(" + std::to_string(efficiency) + ")"]) + "\r\n" +
                  std::string(fields["txtSolveFor(" + std::to_string(storage) + ")"]));
    EXPECT_NE(rate, "") << run.out;
  }

  const Apartment apartment_;
  TempFolder folder_;
  ComPtr<IclsStReuse> entry_;
  ShowTexts texts_{"host's own", "", ""};
};

// --- Saving ---

TEST_F(ShowTest, AProjectComesBackWithItsResults) {
  texts_.third = ProjectText();
  ExpectShown(1, [](FormUser& user) { user.Click("cmdSaveExit"); });
  EXPECT_EQ(texts_.third, ProjectText());
  EXPECT_EQ(texts_.own, "host's own");
  ExpectResultsOfCommandLine();
}

TEST_F(ShowTest, WhatTheUserTypesAndChoosesComesBack) {
  texts_.third = ProjectText();
  ExpectShown(1, [](FormUser& user) {
    user.Type("txtSolveFor(1)", "72");
    user.Press({VK_RETURN, {}});
    if (!user.UntilText("txtE", "72")) throw std::runtime_error("Enter does not recalculate");
    user.Choose("cmbClimateStation", "Orlando");
    user.Choose("cmbSolveFor", "Reuse Rate");
    user.Type("txtSolveFor(1)", "75");
    user.Press({VK_TAB, {}});
    if (!user.UntilText("txtE", "75")) throw std::runtime_error("Leaving does not recalculate");
    user.Click("cmdSaveExit");
  });
  const auto lines = Lines(texts_.third);
  ASSERT_EQ(lines.size(), kTailLine + 2) << texts_.third;
  EXPECT_EQ(lines[kStationNameLine], "Orlando");
  EXPECT_EQ(lines[kModeLine], "3");
  EXPECT_EQ(lines[kTailLine], "75");
  ExpectResultsOfCommandLine();
}

TEST_F(ShowTest, APointDraggedOnTheChartComesBack) {
  texts_.third = ProjectText(ProjectLines("0", {"1", "0.125", "3"}));
  ExpectShown(1, [](FormUser& user) {
    const std::string before = user.Text("txtR");
    RECT inner{};
    ::GetClientRect(user.Find("ctrlStormwaterReuse1"), &inner);
    user.Drag("ctrlStormwaterReuse1", {inner.right / 2, inner.bottom / 2},
              {inner.right * 11 / 20, inner.bottom * 3 / 5});
    const bool moved = user.Until([&] {
      return user.Text("txtR") != before && user.Text("txtSolveFor(3)") != "" &&
             user.Text("txtErrMsg").empty();
    });
    if (!moved) throw std::runtime_error("The point stays at R = " + user.Text("txtR"));
    user.Click("cmdSaveExit");
  });
  const auto lines = Lines(texts_.third);
  ASSERT_EQ(lines.size(), kTailLine + 3) << texts_.third;
  EXPECT_NE(lines[kTailLine + 1], "0.125");
  ExpectResultsOfCommandLine();
}

TEST_F(ShowTest, TheReturnMenuSavesAndTheFileMenuIsAway) {
  texts_.third = ProjectText();
  std::vector<std::string> menus;
  ExpectShown(1, [&](FormUser& user) {
    menus = user.Menus();
    user.ClickMenu("mnuReturn_Save");
  });
  EXPECT_THAT(menus, testing::ElementsAre("&Return", "Vie&w", "&Help"));
  EXPECT_EQ(texts_.third, ProjectText());
}

TEST_F(ShowTest, TheHostsBasinIsInTheFields) {
  texts_.second = "20\n0.25";
  ExpectShown(0, [](FormUser& user) {
    if (user.Text("txtBasinArea") != "20" || user.Text("txtRunoffCoefficient") != "0.25" ||
        user.Text("txtEquivalentImperviousArea") != "5") {
      throw std::runtime_error("The basin is " + user.Text("txtBasinArea"));
    }
    user.Click("cmdDiscardExit");
  });
  EXPECT_EQ(texts_.second, "20\n0.25");
}

// --- Discarding ---

TEST_F(ShowTest, DiscardingLeavesTheTextsAsTheyWere) {
  texts_.second = "one item";
  ExpectShown(0, [](FormUser& user) {
    user.Type("txtBasinArea", "12");
    user.Click("cmdDiscardExit");
  });
  EXPECT_EQ(texts_.second, "one item");
  EXPECT_EQ(texts_.third, "");
}

TEST_F(ShowTest, ClosingByTheFrameAsks) {
  for (const int answer : {IDYES, IDNO}) {
    texts_ = {"", "", ProjectText()};
    ExpectShown(answer == IDYES ? 1 : 0, [answer](FormUser& user) {
      user.CloseByFrame();
      user.AnswerDialog(answer);
    });
    EXPECT_EQ(texts_.second.empty(), answer == IDNO);
  }
}

TEST_F(ShowTest, NoiseIsToldAndTheWindowOpensEmpty) {
  texts_.third = "KAV3.3.01\r\nnoise";
  std::string told;
  std::thread reader([&] { told = ReadMessage("Error"); });
  ExpectShown(0, [](FormUser& user) {
    if (user.Text("txtBasinArea") != "") throw std::runtime_error("It is not empty.");
    user.Click("cmdDiscardExit");
  });
  reader.join();
  EXPECT_EQ(told, "Error reading data.");
  EXPECT_EQ(texts_.third, "KAV3.3.01\r\nnoise");
}

// --- One window at a time, and none left ---

TEST_F(ShowTest, ASecondCallWhileTheWindowIsOpenIsRefused) {
  HRESULT second = S_OK;
  texts_.third = ProjectText();
  ExpectShown(1, [&](FormUser& user) {
    const Apartment apartment;
    ComPtr<IclsStReuse> other;
    ::CoCreateInstance(__uuidof(::clsStReuse), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsStReuse),
                       other.OutVoid());
    short code = 7;
    std::array<BSTR, 3> texts{};
    second = other->Show(2, &texts[0], &texts[1], &texts[2], &code);
    user.Click("cmdSaveExit");
  });
  EXPECT_EQ(second, HRESULT_FROM_WIN32(ERROR_BUSY));
  EXPECT_EQ(texts_.third, ProjectText());
}

TEST_F(ShowTest, TheHostsWindowIsDisabledMeanwhileAndGetsItsFocusBack) {
  const ParentWindow host;
  ASSERT_TRUE(Activate(host.Handle()));
  ::SetFocus(host.Handle());
  BOOL enabledMeanwhile = TRUE;
  ExpectShown(0, [&](FormUser& user) {
    enabledMeanwhile = ::IsWindowEnabled(host.Handle());
    user.Click("cmdDiscardExit");
  });
  EXPECT_FALSE(enabledMeanwhile);
  EXPECT_TRUE(::IsWindowEnabled(host.Handle()));
  EXPECT_EQ(::GetActiveWindow(), host.Handle());
}

TEST_F(ShowTest, TheModuleCanBeUnloadedAndLoadedAgain) {
  for (int round = 0; round < 3; ++round) {
    ExpectShown(0, [](FormUser& user) { user.Click("cmdDiscardExit"); });
    entry_.Reset();
    ::CoFreeUnusedLibrariesEx(0, 0);
    EXPECT_EQ(::GetModuleHandleW(L"StReuse.dll"), nullptr) << round;
    ASSERT_EQ(::CoCreateInstance(__uuidof(::clsStReuse), nullptr, CLSCTX_INPROC_SERVER,
                                 __uuidof(IclsStReuse), entry_.OutVoid()),
              S_OK);
  }
}

// The window scales by itself; the host's thread keeps its own scaling.
TEST_F(ShowTest, AHostOfAnotherScalingIsLeftAsItIs) {
  for (const DPI_AWARENESS_CONTEXT context :
       {DPI_AWARENESS_CONTEXT_UNAWARE, DPI_AWARENESS_CONTEXT_SYSTEM_AWARE}) {
    const DPI_AWARENESS_CONTEXT before = ::SetThreadDpiAwarenessContext(context);
    texts_ = {"", "", ProjectText()};
    ExpectShown(1, [](FormUser& user) {
      user.Type("txtSolveFor(1)", "72");
      user.Press({VK_RETURN, {}});
      if (!user.UntilText("txtE", "72")) throw std::runtime_error("Enter does not recalculate");
      user.Click("cmdSaveExit");
    });
    EXPECT_TRUE(::AreDpiAwarenessContextsEqual(::GetThreadDpiAwarenessContext(), context));
    ::SetThreadDpiAwarenessContext(before);
  }
}

TEST_F(ShowTest, TwentyRunsInARowComeToTheSame) {
  for (int run = 0; run < 20; ++run) {
    texts_ = {"", "", ProjectText()};
    ExpectShown(1, [](FormUser& user) {
      user.Type("txtSolveFor(1)", "72");
      user.Press({VK_RETURN, {}});
      if (!user.UntilText("txtE", "72")) throw std::runtime_error("Enter does not recalculate");
      user.Click("cmdSaveExit");
    });
    ASSERT_THAT(texts_.second, testing::HasSubstr("\r\n72\r\n")) << run;
  }
}

// --- The small windows ---

TEST_F(ShowTest, TheStationMapAndTheAboutBoxOpenOverTheWindow) {
  std::string map;
  std::string version;
  ExpectShown(0, [&](FormUser& user) {
    user.Click("cmdMap");
    const FormUser stations = user.WaitForWindow("Climate stations", ClimateStationsDesign::Get());
    map = stations.Text("ctrlPictureViewer1");
    stations.Press({VK_ESCAPE, {}});
    user.UntilBack();
    user.ClickMenu("mnuHelp_About");
    const FormUser about = user.WaitForWindow("About this module", AboutDesign::Get());
    version = about.Text("txtVersion");
    about.Press({VK_RETURN, {}});
    user.UntilBack();
    user.Click("cmdDiscardExit");
  });
  EXPECT_THAT(map, testing::MatchesRegex("Map of the climate stations: zoom \\d+ %"));
  EXPECT_EQ(version, "Version " + BuildVersionText());
}

// --- Stand-alone ---

TEST_F(ShowTest, StandAloneOpensTheNamedFile) {
  texts_.second = folder_.Write("pond é.kav", ProjectText());
  ExpectShown(
      0,
      [](FormUser& user) {
        if (user.Caption() != "ORVIK 3.3 KAV - pond é.kav") {
          throw std::runtime_error("The title is " + user.Caption());
        }
        user.CloseByFrame();
      },
      1);
}

TEST_F(ShowTest, MakesAFolderOnce) {
  const com::Bstr path(folder_ / "new");
  VARIANT_BOOL made = VARIANT_FALSE;
  EXPECT_EQ(entry_->MakeDirectory(path.Get(), &made), S_OK);
  EXPECT_EQ(made, VARIANT_TRUE);
  EXPECT_EQ(entry_->MakeDirectory(path.Get(), &made), S_OK);
  EXPECT_EQ(made, VARIANT_FALSE) << "it is there already";
}

TEST_F(ShowTest, AMissingPlaceIsAnError) {
  short code = 0;
  EXPECT_EQ(entry_->Show(2, nullptr, nullptr, nullptr, &code), E_POINTER);
  EXPECT_EQ(entry_->MakeDirectory(nullptr, nullptr), E_POINTER);
}

}  // namespace
}  // namespace orvik::test
