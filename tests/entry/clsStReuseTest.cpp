// The entry object without a screen: what the user does while the window is shown stands in a
// function.
#include <algorithm>
#include <thread>

#include "base/Paths.h"
#include "entry/ReuseModule.h"
#include "entry/clsStReuse.h"
#include "platform/recording/RecordingPrinter.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::ProjectLines;
using test::ProjectText;

class clsStReuseTest : public testing::Test {
 protected:
  clsStReuseTest() {
    folder_.Write("KAV Data/Tampa.crv", test::LogarithmicCurves().Text());
    MakeDirectory(folder_ / "Documents");
    desktop_.DocumentsFolder(folder_ / "Documents");
  }

  static bool HasText(const RecordingPrinter& printer, std::string_view text) {
    return std::ranges::any_of(printer.Calls(), [&](const std::string& call) {
      return call.find(text) != std::string::npos;
    });
  }

  // Shows the window; `user` acts while it is open.
  std::int16_t Show(std::int16_t mode, std::function<void()> user) {
    if (!module_.HasWindow()) module_.Window();
    toolkit_.Find<test::UserWindow>("Form1").OnShown = [this, user = std::move(user)] {
      wasShown_ = true;
      user();
    };
    return entry_.Show(mode, p1_, p2_, p3_);
  }
  std::int16_t ShowAndSave() {
    return Show(2, [this] { toolkit_.ClickButton("cmdSaveExit"); });
  }

  test::TempFolder folder_;
  test::AnsweringDesktop desktop_;
  test::UserToolkit toolkit_;
  // Runs the work on a thread of its own, which has ended for the module too when this returns.
  void OnAnotherThread(const std::function<void()>& work) {
    std::thread([&] {
      work();
      *runs_ = false;
    }).join();
    runs_ = std::make_shared<bool>(true);
  }

  std::shared_ptr<bool> runs_ = std::make_shared<bool>(true);  // the thread that is watched next
  ReuseModule module_{folder_.Path(), desktop_, [this] { return toolkit_.ForAnotherWindow(); },
                      [this] { return [runs = runs_] { return *runs; }; }};
  clsStReuse entry_{module_};
  bool wasShown_ = false;
  std::string p1_ = "host's own";
  std::string p2_;
  std::string p3_;
};

// --- Saving and discarding ---

// E = 60 and Q = 0.875 in/week on 5 of 5 ac: R = 0.125, so ln V = (60 - 50 - 400 x 0.125 + 60) / 20
// = 1 and V = e in, which is e / 12 x 5 = 1.132617 ac-ft; 16971.43 gallons a day.
TEST_F(clsStReuseTest, SavingHandsBackTheProjectAndThreeLinesOfResults) {
  p3_ = ProjectText();
  EXPECT_EQ(ShowAndSave(), 1);
  const auto results = test::Lines(p2_ + "\r\n");
  ASSERT_EQ(results.size(), 3U) << p2_;
  EXPECT_NEAR(ParseNumber(results[0]), 16971.43, 0.01);
  EXPECT_EQ(results[1], "60");
  // V is sought until R agrees to 1e-5 in/day, where R falls by 0.05 / V for each inch.
  EXPECT_NEAR(ParseNumber(results[2]), std::exp(1.0) / 12 * 5, 2.5e-4);
  EXPECT_EQ(p3_, ProjectText());
  EXPECT_EQ(p1_, "host's own");
  EXPECT_FALSE(module_.HasWindow()) << "unloaded";
}

TEST_F(clsStReuseTest, TheResultIsWhatTheUserMadeOfTheProject) {
  p3_ = ProjectText();
  EXPECT_EQ(Show(2,
                 [this] {
                   toolkit_.Type("txtProjectName", "Lake é");
                   toolkit_.Type("txtSolveFor(1)", "70");
                   toolkit_.PressKey("txtSolveFor(1)", '\r');
                   toolkit_.ClickMenu("mnuReturn_Save");
                 }),
            1);
  auto expected = ProjectLines();
  expected[test::kProjectNameLine] = "Lake é";
  expected[test::kTailLine] = "70";
  EXPECT_EQ(p3_, ProjectText(expected));
  EXPECT_EQ(test::Lines(p2_)[1], "70");
}

TEST_F(clsStReuseTest, DiscardingLeavesTheTextsAsTheyWere) {
  p2_ = "1\r\n0.5";
  p3_ = "";
  EXPECT_EQ(Show(2, [this] { toolkit_.ClickButton("cmdDiscardExit"); }), 0);
  EXPECT_EQ(p2_, "1\r\n0.5");
  EXPECT_EQ(p3_, "");
}

TEST_F(clsStReuseTest, ClosingByTheFrameSavesOnlyAfterYes) {
  for (const bool yes : {true, false}) {
    p3_ = ProjectText();
    p2_ = "";
    desktop_.AnswerYes(yes);
    EXPECT_EQ(Show(2, [this] { toolkit_.CloseByFrame("Form1"); }), yes ? 1 : 0);
    EXPECT_EQ(p2_.empty(), !yes);
  }
}

TEST_F(clsStReuseTest, AnEmptyProjectTextOpensOnDefaultData) {
  EXPECT_EQ(Show(2,
                 [this] {
                   EXPECT_EQ(toolkit_.Text("txtBasinArea"), "");
                   EXPECT_EQ(toolkit_.Text("txtErrMsg"), "");
                   EXPECT_TRUE(toolkit_.IsVisible("mnuReturn"));
                   toolkit_.ClickButton("cmdDiscardExit");
                 }),
            0);
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(clsStReuseTest, ForATextThatIsNotAProjectAnErrorIsShownAndTheWindowOpens) {
  p3_ = "noise";
  bool shown = false;
  EXPECT_EQ(Show(2, [&] { shown = true; }), 0);
  EXPECT_TRUE(shown);
  ASSERT_EQ(desktop_.Messages().size(), 2U);
  EXPECT_EQ(desktop_.Messages()[1],
            (HeadlessDesktop::Message{"Error reading data.", "Error", MessageIcon::Exclamation}));
  EXPECT_EQ(p3_, "noise");
}

TEST_F(clsStReuseTest, ForHalfAProjectAnErrorIsShownAndTheWindowOpensEmpty) {
  auto lines = ProjectLines();
  lines.pop_back();
  p3_ = ProjectText(lines);
  p2_ = "20\r\n0.25";
  EXPECT_EQ(Show(2,
                 [this] {
                   EXPECT_EQ(toolkit_.Text("txtProjectName"), "");
                   EXPECT_EQ(toolkit_.Find<HeadlessComboBox>("cmbClimateStation").ListIndex(), -1);
                   EXPECT_EQ(toolkit_.Text("txtIrrigationArea"), "");
                   EXPECT_EQ(toolkit_.Text("txtBasinArea"), "20") << "the host's own basin";
                 }),
            0);
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0].text, "Error reading data.");
}

TEST_F(clsStReuseTest, AProjectWithoutResultsSavesWithEmptyLines) {
  EXPECT_EQ(ShowAndSave(), 1);
  EXPECT_EQ(p2_, "\r\n\r\n");
  EXPECT_EQ(test::Lines(p3_)[0], "KAV3.3.01");
}

TEST_F(clsStReuseTest, AnotherModeThanTheTwoReadsTheTextsAsAHostsProject) {
  p3_ = ProjectText();
  EXPECT_EQ(Show(3, [this] { EXPECT_EQ(toolkit_.Text("txtProjectName"), "Pond"); }), 0);
}

// --- The host's basin ---

TEST_F(clsStReuseTest, TheHostsBasinReplacesTheProjects) {
  for (const char* separator : {"\r\n", "\n", "\r"}) {
    p3_ = ProjectText();
    p2_ = std::string("20") + separator + "0.25" + separator;
    EXPECT_EQ(Show(2,
                   [this] {
                     EXPECT_EQ(toolkit_.Text("txtBasinArea"), "20");
                     EXPECT_EQ(toolkit_.Text("txtRunoffCoefficient"), "0.25");
                     EXPECT_EQ(toolkit_.Text("txtEquivalentImperviousArea"), "5");
                   }),
              0);
  }
}

TEST_F(clsStReuseTest, WhatWasSolvedForAnotherBasinIsSolvedAnew) {
  p3_ = ProjectText();
  p2_ = "20\r\n0.5";  // EIA 10 ac: half the R, so ln V = (70 - 25) / 20 = 2.25 and V = 9.49 in
  EXPECT_EQ(ShowAndSave(), 1);
  EXPECT_EQ(test::Lines(p3_)[test::kBasinAreaLine], "20");
  EXPECT_TRUE(p2_.ends_with("\r\n")) << "beyond the chart: no volume, above all not the old one";
}

TEST_F(clsStReuseTest, ASingleItemSetsNeitherBasinFieldNorCoefficient) {
  for (const char* single : {"20", "20\r\n", ""}) {
    p3_ = ProjectText();
    p2_ = single;
    EXPECT_EQ(Show(2,
                   [this] {
                     EXPECT_EQ(toolkit_.Text("txtBasinArea"), "10");
                     EXPECT_EQ(toolkit_.Text("txtRunoffCoefficient"), "0.5");
                   }),
              0);
  }
}

TEST_F(clsStReuseTest, ItemsThatAreNotNumbersAreShownInTheFieldsWithAMessage) {
  p2_ = "wide\r\nbig\r\nmore";
  p3_ = ProjectText();
  EXPECT_EQ(Show(2,
                 [this] {
                   EXPECT_EQ(toolkit_.Text("txtBasinArea"), "wide");
                   toolkit_.PressKey("txtBasinArea", '\r');
                   toolkit_.ClickButton("cmdReCalc");
                   EXPECT_EQ(toolkit_.Text("txtErrMsg"), "The basin area is not numeric.");
                 }),
            0);
}

// --- Stand-alone ---

TEST_F(clsStReuseTest, StandAloneOpensTheFileThatIsNamed) {
  p2_ = folder_.Write("pond.kav", ProjectText());
  p3_ = "not looked at";
  EXPECT_EQ(Show(1,
                 [this] {
                   EXPECT_EQ(toolkit_.Text("txtProjectName"), "Pond");
                   EXPECT_EQ(toolkit_.Caption("Form1"), "ORVIK 3.3 KAV - pond.kav");
                   EXPECT_TRUE(toolkit_.IsVisible("mnuFile"));
                   toolkit_.CloseByFrame("Form1");
                 }),
            0);
  EXPECT_EQ(p3_, "not looked at");
}

// The window says it beside its messages: no box comes before it.
TEST_F(clsStReuseTest, StandAloneSaysThatTheNamedFileCannotBeOpened) {
  auto half = ProjectLines();
  half.pop_back();
  for (const std::string& path :
       {folder_ / "missing.kav", folder_.Write("half.kav", ProjectText(half)), folder_.Path()}) {
    p2_ = path;
    EXPECT_EQ(Show(1,
                   [&] {
                     EXPECT_THAT(module_.Window().Hints(),
                                 testing::Contains(Hint{HintId::NamedFileNotOpened, {path}}));
                     toolkit_.ClickMenu("mnuFile_New");
                     EXPECT_THAT(module_.Window().Hints(), testing::IsEmpty()) << path;
                   }),
              0);
  }
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(clsStReuseTest, StandAloneShowsWhyANamedFileIsNoProjectAndNoFurtherBox) {
  p2_ = folder_.Write("pond.kav", "Dear Sir,\r\n");
  EXPECT_EQ(Show(1, [] {}), 0);
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0].text,
            "The data file does not appear to be a valid ORVIK 3.3 KAV file.");
}

TEST_F(clsStReuseTest, StandAloneKeepsRecoveryCopiesAndAHostProjectNone) {
  desktop_.StateFolder(folder_ / "state");
  Show(2, [this] {
    toolkit_.Type("txtProjectName", "Pond");
    EXPECT_EQ(module_.Window().Unsaved(), nullptr);
  });
  EXPECT_FALSE(FolderExists(folder_ / "state"));
  Show(1, [this] { toolkit_.Type("txtProjectName", "Pond"); });
  Show(1, [this] { EXPECT_EQ(module_.Window().Unsaved()->Offers().size(), 1U); });
}

TEST_F(clsStReuseTest, FileDialogsStartInTheModulesFolder) {
  EXPECT_EQ(Show(1, [this] { toolkit_.ClickMenu("mnuFile_Open"); }), 0);
  ASSERT_EQ(desktop_.FileDialogs().size(), 1U);
  EXPECT_EQ(desktop_.FileDialogs()[0].startFolder, module_.Folders().module);
  EXPECT_TRUE(FolderExists(module_.Folders().module));
}

// What the user does to the folders later is the user's own; printing needs none of them.
TEST_F(clsStReuseTest, OnlyTheFirstShowMakesTheFolders) {
  const std::string suite = folder_ / "Documents/ORVIK33";
  RecordingPrinter printer;
  entry_.Print_Remote(&printer, 2, "", ProjectText());
  EXPECT_FALSE(FolderExists(suite));
  EXPECT_EQ(ShowAndSave(), 1);
  EXPECT_TRUE(FolderExists(suite));
  std::filesystem::remove_all(PathFromUtf8(suite));
  EXPECT_EQ(ShowAndSave(), 1);
  EXPECT_FALSE(FolderExists(suite));
}

// --- One window ---

TEST_F(clsStReuseTest, ASecondCallWhileTheWindowIsOpenIsRefusedAndHarmsNothing) {
  p3_ = ProjectText();
  clsStReuse second(module_);
  EXPECT_EQ(Show(2,
                 [&] {
                   std::string a;
                   std::string b;
                   std::string c;
                   EXPECT_THROW(second.Show(2, a, b, c), WindowBusyError);
                   EXPECT_EQ(toolkit_.Text("txtProjectName"), "Pond");
                   toolkit_.ClickButton("cmdSaveExit");
                 }),
            1);
  EXPECT_EQ(p3_, ProjectText());
  EXPECT_EQ(ShowAndSave(), 1) << "free again";
}

TEST_F(clsStReuseTest, AWindowLeftFromPrintingOpensOnDefaultData) {
  module_.Window().Files().ReadFile(ProjectText());
  EXPECT_EQ(Show(2, [this] { EXPECT_EQ(toolkit_.Text("txtProjectName"), ""); }), 0);
}

TEST_F(clsStReuseTest, AReturnCodeFromBeforeDoesNotCount) {
  module_.Window().ReturnCode(1);
  EXPECT_EQ(Show(1, [this] { toolkit_.CloseByFrame("Form1"); }), 0);
  EXPECT_EQ(p3_, "");
}

TEST_F(clsStReuseTest, AnotherThreadIsRefusedTheWindow) {
  module_.Window();
  std::thread([this] { EXPECT_THROW(entry_.Show(2, p1_, p2_, p3_), WindowThreadError); }).join();
  EXPECT_EQ(ShowAndSave(), 1);
}

TEST_F(clsStReuseTest, AnIdleWindowIsUnloadedByItsOwnThreadOnly) {
  module_.Window();
  std::thread([this] { module_.LetGoOfWindow(this); }).join();
  EXPECT_TRUE(module_.HasWindow());
  module_.LetGoOfWindow(this);
  EXPECT_FALSE(module_.HasWindow());
  EXPECT_EQ(Show(2, [this] { module_.LetGoOfWindow(this); }), 0) << "it is not idle while it shows";
}

TEST_F(clsStReuseTest, AWindowOfAThreadThatHasEndedBlocksNobody) {
  OnAnotherThread([this] {
    RecordingPrinter printer;
    entry_.Print_Remote(&printer, 2, "", ProjectText());
  });
  ASSERT_TRUE(module_.HasWindow()) << "left loaded, and nobody let go of it";
  RecordingPrinter printer;
  EXPECT_NO_THROW(entry_.Print_Remote(&printer, 2, "", ProjectText()));
  EXPECT_TRUE(printer.HasEnded());
  EXPECT_EQ(ShowAndSave(), 1);
}

// The operation never ends: its thread does, in the midst of it.
TEST_F(clsStReuseTest, AnOperationWhoseThreadHasEndedBlocksNobody) {
  std::unique_ptr<ReuseModule::Use> neverEnding;
  OnAnotherThread([&] {
    neverEnding = std::make_unique<ReuseModule::Use>(module_);
    module_.Window();
  });
  RecordingPrinter printer;
  EXPECT_NO_THROW(entry_.Print_Remote(&printer, 2, "", ProjectText()));
  EXPECT_TRUE(printer.HasEnded());
}

TEST_F(clsStReuseTest, AWindowStaysUntilEveryObjectThatPrintedFromItIsGone) {
  RecordingPrinter printer;
  auto first = std::make_unique<clsStReuse>(module_);
  auto second = std::make_unique<clsStReuse>(module_);
  first->Print_Remote(&printer, 2, "", ProjectText());
  second->Print_Remote(&printer, 2, "", ProjectText());
  { const clsStReuse idle(module_); }
  first.reset();
  EXPECT_TRUE(module_.HasWindow()) << "the second object printed from it";
  second.reset();
  EXPECT_FALSE(module_.HasWindow());
}

// --- Remote printing ---

TEST_F(clsStReuseTest, PrintsAProjectWithoutShowingTheWindow) {
  for (const char* round : {"first", "again"}) {
    RecordingPrinter printer;
    entry_.Print_Remote(&printer, 2, "", ProjectText());
    EXPECT_TRUE(printer.HasEnded()) << round;
    EXPECT_EQ(printer.PageNumber(), 2) << round;
    EXPECT_TRUE(HasText(printer, "Pond")) << round;
    EXPECT_FALSE(wasShown_) << round;
    EXPECT_TRUE(module_.HasWindow()) << "left loaded";
  }
  EXPECT_TRUE(desktop_.Messages().empty());
}

TEST_F(clsStReuseTest, PrintsBeforeAndAfterShowing) {
  RecordingPrinter before;
  entry_.Print_Remote(&before, 2, "", ProjectText());
  p3_ = "";
  EXPECT_EQ(Show(2, [this] { EXPECT_EQ(toolkit_.Text("txtProjectName"), ""); }), 0);
  RecordingPrinter after;
  entry_.Print_Remote(&after, 2, "", ProjectText());
  EXPECT_EQ(after.Calls().size(), before.Calls().size());
}

TEST_F(clsStReuseTest, PrintsAnEmptyProjectForAnEmptyText) {
  RecordingPrinter first;
  entry_.Print_Remote(&first, 2, "", ProjectText());
  RecordingPrinter printer;
  entry_.Print_Remote(&printer, 2, "", "");
  EXPECT_TRUE(printer.HasEnded());
  EXPECT_FALSE(HasText(printer, "Pond")) << "the project that was printed before is gone";
  EXPECT_TRUE(desktop_.Messages().empty());
}

// Wherever the text breaks off, the report is the one of an empty text, title and all.
TEST_F(clsStReuseTest, ForHalfAProjectAnErrorIsShownAndNothingOfItIsPrinted) {
  RecordingPrinter empty;
  entry_.Print_Remote(&empty, 2, "", "");
  ASSERT_FALSE(HasText(empty, "Pond"));
  auto lines = ProjectLines();
  for (lines.pop_back(); !lines.empty(); lines.pop_back()) {
    SCOPED_TRACE(lines.size());
    desktop_.ForgetMessages();
    RecordingPrinter printer;
    entry_.Print_Remote(&printer, 2, "", ProjectText(lines));
    ASSERT_EQ(desktop_.Messages().size(), 1U);
    EXPECT_EQ(desktop_.Messages()[0],
              (HeadlessDesktop::Message{"Error reading data.", "Error", MessageIcon::Exclamation}));
    EXPECT_EQ(printer.Calls(), empty.Calls());
  }
}

TEST_F(clsStReuseTest, ForATextThatIsNotAProjectAnErrorIsShownAndTheReportIsEmpty) {
  RecordingPrinter empty;
  entry_.Print_Remote(&empty, 2, "", "");
  RecordingPrinter printer;
  entry_.Print_Remote(&printer, 2, "", "noise");
  ASSERT_FALSE(desktop_.Messages().empty());
  EXPECT_EQ(desktop_.Messages().back().text, "Error reading data.");
  EXPECT_EQ(printer.Calls(), empty.Calls());
}

TEST_F(clsStReuseTest, AProjectPrintsInFullAfterOneThatBrokeOff) {
  RecordingPrinter before;
  entry_.Print_Remote(&before, 2, "", ProjectText());
  auto lines = ProjectLines();
  lines.resize(12);
  RecordingPrinter broken;
  entry_.Print_Remote(&broken, 2, "", ProjectText(lines));
  RecordingPrinter after;
  entry_.Print_Remote(&after, 2, "", ProjectText());
  EXPECT_EQ(after.Calls(), before.Calls());
}

TEST_F(clsStReuseTest, WithoutAPrinterAnErrorIsShown) {
  entry_.Print_Remote(nullptr, 2, "", ProjectText());
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0],
            (HeadlessDesktop::Message{"Unable to establish connection with printer.", "Error",
                                      MessageIcon::Exclamation}));
}

TEST_F(clsStReuseTest, PrintingWhileTheWindowIsOpenIsRefused) {
  EXPECT_EQ(Show(2,
                 [this] {
                   RecordingPrinter printer;
                   EXPECT_THROW(entry_.Print_Remote(&printer, 2, "", ""), WindowBusyError);
                 }),
            0);
}

// --- Folders ---

TEST_F(clsStReuseTest, MakeDirectoryMakesOneLevelOnce) {
  EXPECT_TRUE(entry_.MakeDirectory(folder_ / "é new"));
  EXPECT_TRUE(FolderExists(folder_ / "é new"));
  EXPECT_FALSE(entry_.MakeDirectory(folder_ / "é new")) << "there already";
  EXPECT_FALSE(entry_.MakeDirectory(folder_ / "a/b")) << "two levels";
  EXPECT_FALSE(entry_.MakeDirectory(folder_.Write("file", "x"))) << "a file of that name";
  EXPECT_FALSE(entry_.MakeDirectory(""));
  EXPECT_FALSE(entry_.MakeDirectory(folder_ / std::string("cut\0off", 7))) << "a NUL";
  EXPECT_FALSE(FolderExists(folder_ / "cut"));
}

TEST(SplitLines, EndsLinesAtEveryKindOfLineEnd) {
  using Items = std::vector<std::string>;
  EXPECT_EQ(SplitLines("a\r\nb\nc\rd"), (Items{"a", "b", "c", "d"}));
  EXPECT_EQ(SplitLines("a\r\n"), Items{"a"});
  EXPECT_EQ(SplitLines("\r\nb"), (Items{"", "b"}));
  EXPECT_EQ(SplitLines("a\n\rb"), (Items{"a", "", "b"}));
  EXPECT_EQ(SplitLines(""), Items{});
}

}  // namespace
}  // namespace orvik
