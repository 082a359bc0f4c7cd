// The recovery copy of the window in stand-alone use, as its user makes it.
#include <gmock/gmock.h>

#include "base/Paths.h"
#include "files/UnsavedWork.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace orvik {
namespace {

using test::ProjectText;
using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

class UnsavedWorkTest : public test::FormFixture {
 protected:
  UnsavedWorkTest() {
    Clock(0);
    form_->KeepRecoveryCopies(copies_);
  }
  void Clock(int second) { desktop_.Now({{2026, 3, 14}, 15, 9, second}); }
  void Click(const char* item) { toolkit_.ClickMenu(item); }
  void Open(const std::string& path) {
    desktop_.AnswerFile(path);
    Click("mnuFile_Open");
  }
  // The window is gone without a word, and another one starts.
  void StartAgain() {
    form_ = std::make_unique<Form1>(toolkit_, desktop_, folder_.Path());
    form_->KeepRecoveryCopies(copies_);
  }
  std::vector<RecoveryOffer> Offers() { return form_->Unsaved()->Offers(); }
  // On the hint line.
  std::string Said() { return toolkit_.Text("txtHint"); }
  std::string NameIn(const RecoveryOffer& offer) { return test::Lines(offer.text).at(2); }

  std::string copies_ = WithEndingSeparator(folder_ / "Recovery");
};

TEST_F(UnsavedWorkTest, TheFirstInputIsKeptAndTheNextAfterTenSeconds) {
  Type("txtProjectName", "Pond");
  Type("txtProjectNumber", "7");
  StartAgain();
  ASSERT_EQ(Offers().size(), 1U);
  EXPECT_EQ(NameIn(Offers()[0]), "P") << "the first key";
  Type("txtProjectName", "Lake");
  Clock(10);
  Type("txtProjectNumber", "7");
  StartAgain();
  ASSERT_EQ(Offers().size(), 2U);
  EXPECT_EQ(NameIn(Offers()[0]), "Lake");
  EXPECT_EQ(Offers()[0].time, "2026-03-14 15:09:10");
}

TEST_F(UnsavedWorkTest, StationModeNumbersAndPointAreInputToo) {
  const std::vector<std::function<void()>> inputs{
      [this] { Choose("cmbClimateStation", "Tampa"); },
      [this] { Choose("cmbSolveFor", "Efficiency"); },
      [this] { Type("txtBasinArea", "7"); },
      [this] {
        Choose("cmbClimateStation", "Tampa");
        Clock(30);
        const auto& geometry = form_->Chart().Geometry();
        form_->Chart().MouseDown(1, geometry.XPlotToXFrame(3), geometry.YPlotToYFrame(0.125));
      },
  };
  for (const auto& input : inputs) {
    const std::size_t before = Offers().size();
    input();
    const std::string text = form_->Files().TextNow();
    StartAgain();
    ASSERT_EQ(Offers().size(), before + 1);
    EXPECT_THAT(Offers(), Contains(testing::Field(&RecoveryOffer::text, text)));
    Clock(0);
  }
}

TEST_F(UnsavedWorkTest, WhatIsOnlyOpenedIsNotKept) {
  Open(folder_.Write("Pond.kav", ProjectText()));
  Clock(30);
  PressReCalc();
  StartAgain();
  EXPECT_THAT(Offers(), IsEmpty());
}

// In the middle of a change of the mode its slots hold quantities of the old one.
TEST_F(UnsavedWorkTest, ACopyNeverHasTheModeOfOneProjectAndTheNumbersOfAnother) {
  Open(folder_.Write("Pond.kav", ProjectText()));
  Choose("cmbSolveFor", "Efficiency");
  const std::string text = form_->Files().TextNow();
  StartAgain();
  EXPECT_EQ(Offers().at(0).text, text);
}

// --- Leaving the work ---

TEST_F(UnsavedWorkTest, NewOpenDropAndCloseKeepTheWorkAtOnce) {
  const std::string other = folder_.Write("Other.kav", ProjectText());
  const std::vector<std::function<void()>> ways{
      [this] { Click("mnuFile_New"); },
      [&] { Open(other); },
      [&] { toolkit_.DropFile("Form1", other); },
      [this] { toolkit_.CloseByFrame("Form1"); },
  };
  for (const auto& leave : ways) {
    Click("mnuFile_New");
    const std::size_t before = Offers().size();
    Type("txtProjectName", "Lake");  // less than ten seconds since the first key
    leave();
    StartAgain();
    ASSERT_EQ(Offers().size(), before + 1);
    EXPECT_EQ(NameIn(Offers()[0]), "Lake");
  }
  EXPECT_THAT(desktop_.Messages(), IsEmpty()) << "nobody is asked";
}

TEST_F(UnsavedWorkTest, TheNextProjectHasACopyOfItsOwn) {
  Type("txtProjectName", "Lake");
  Click("mnuFile_New");
  Type("txtProjectName", "Pond");
  Click("mnuFile_New");
  EXPECT_EQ(Offers().size(), 2U);
}

TEST_F(UnsavedWorkTest, OfWorkThatIsSavedNothingIsLeft) {
  Type("txtProjectName", "Lake");
  desktop_.AnswerFile(folder_ / "Lake.kav");
  Click("mnuFile_Save");
  toolkit_.CloseByFrame("Form1");
  StartAgain();
  EXPECT_THAT(Offers(), IsEmpty());
}

TEST_F(UnsavedWorkTest, AfterASaveThatFailedClosingKeepsTheWork) {
  Type("txtProjectName", "Lake");
  desktop_.AnswerFile(folder_ / "no such folder/Lake.kav");
  Click("mnuFile_Save");
  EXPECT_THAT(form_->Hints(),
              Contains(Hint{HintId::SaveFailed,
                            {folder_ / "no such folder/Lake.kav", "its folder does not exist"}}));
  EXPECT_THAT(Said(), StartsWith("The project was not saved: "));
  toolkit_.CloseByFrame("Form1");
  StartAgain();
  ASSERT_EQ(Offers().size(), 1U);
  EXPECT_EQ(NameIn(Offers()[0]), "Lake");
}

TEST_F(UnsavedWorkTest, WhatWasTypedBackToTheSavedTextIsNothingUnsaved) {
  Open(folder_.Write("Pond.kav", ProjectText()));
  Type("txtProjectName", "Lake");
  Type("txtProjectName", "Pond");
  toolkit_.CloseByFrame("Form1");
  StartAgain();
  EXPECT_THAT(Offers(), IsEmpty());
}

// --- Bringing it back ---

TEST_F(UnsavedWorkTest, TheNextStartSaysWhatCanBeBroughtBack) {
  EXPECT_THAT(form_->Hints(), IsEmpty());
  const std::string path = folder_.Write("Pond.kav", ProjectText());
  Open(path);
  Type("txtProjectName", "Lake");
  Click("mnuFile_New");
  EXPECT_THAT(form_->Hints(), IsEmpty()) << "the user knows what was just left";
  StartAgain();
  EXPECT_THAT(form_->Hints(),
              Contains(Hint{HintId::RecoveryOffered, {"Pond.kav", "2026-03-14 15:09:00"}}));
  form_->Unsaved()->Discard(Offers().at(0).id);
  EXPECT_THAT(form_->Hints(), IsEmpty());
}

TEST_F(UnsavedWorkTest, RestoringShowsTheWorkUntitledAndKeepsItUntilItIsSaved) {
  const std::string path = folder_.Write("Projects/Pond.kav", ProjectText());
  Open(path);
  Type("txtProjectName", "Lake");
  Click("mnuFile_New");
  StartAgain();
  ASSERT_TRUE(form_->Unsaved()->Restore(Offers().at(0).id));
  EXPECT_EQ(Text("txtProjectName"), "Lake");
  EXPECT_EQ(form_->Files().CurrentPath(), "");
  EXPECT_TRUE(form_->Files().HasUnsavedChanges());
  EXPECT_THAT(Offers(), IsEmpty()) << "it is this window's own now";
  StartAgain();
  ASSERT_EQ(Offers().size(), 1U) << "killed again: nothing is lost";
  EXPECT_EQ(NameIn(Offers()[0]), "Lake");
  EXPECT_EQ(Offers()[0].path, path);
  ASSERT_TRUE(form_->Unsaved()->Restore(Offers().at(0).id));
  desktop_.AnswerFile(path);
  Click("mnuFile_Save");
  EXPECT_EQ(desktop_.FileDialogs().back().startFolder, FolderOf(path));
  toolkit_.CloseByFrame("Form1");
  StartAgain();
  EXPECT_THAT(Offers(), IsEmpty());
}

TEST_F(UnsavedWorkTest, RestoringKeepsTheWorkThatIsInTheWay) {
  Type("txtProjectName", "Lake");
  StartAgain();
  Type("txtProjectName", "Pond");
  ASSERT_TRUE(form_->Unsaved()->Restore(Offers().at(0).id));
  ASSERT_EQ(Offers().size(), 1U);
  EXPECT_EQ(NameIn(Offers()[0]), "Pond");
}

TEST_F(UnsavedWorkTest, TheFileMenuRestoresTheNewestWork) {
  EXPECT_FALSE(toolkit_.IsVisible("mnuFile_Restore")) << "there is nothing to restore";
  Type("txtProjectName", "Lake");
  StartAgain();
  EXPECT_TRUE(toolkit_.IsVisible("mnuFile_Restore"));
  Click("mnuFile_Restore");
  EXPECT_EQ(Text("txtProjectName"), "L");
  EXPECT_EQ(toolkit_.Caption("lblSaved"), "Unsaved changes");
  EXPECT_FALSE(toolkit_.IsVisible("mnuFile_Restore"));
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(UnsavedWorkTest, TheFileMenuDiscardsKeptWorkOnlyAfterAQuestion) {
  Type("txtProjectName", "Lake");
  StartAgain();
  desktop_.AnswerYes(false);
  Click("mnuFile_DiscardKept");
  EXPECT_EQ(Offers().size(), 1U);
  desktop_.AnswerYes(true);
  Click("mnuFile_DiscardKept");
  EXPECT_THAT(Offers(), IsEmpty());
  EXPECT_FALSE(toolkit_.IsVisible("mnuFile_DiscardKept"));
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(UnsavedWorkTest, WhatIsGoneIsNotRestoredAndChangesNothing) {
  Type("txtProjectName", "Pond");
  EXPECT_FALSE(form_->Unsaved()->Restore("0123456789abcdef"));
  EXPECT_EQ(Text("txtProjectName"), "Pond");
}

// --- Where there is none ---

TEST_F(UnsavedWorkTest, ACopyThatCannotBeWrittenIsSaid) {
  folder_.Write("Recovery", "a file in the way");
  Type("txtProjectName", "Pond");
  EXPECT_THAT(form_->Hints(), Contains(Hint{HintId::RecoveryNotWritten, {copies_}}));
}

TEST_F(UnsavedWorkTest, InAHostProjectNoCopyIsKept) {
  form_ = std::make_unique<Form1>(toolkit_, desktop_, folder_.Path());
  form_->Mode(2);
  Type("txtProjectName", "Pond");
  EXPECT_EQ(form_->Unsaved(), nullptr);
  EXPECT_FALSE(FolderExists(copies_));
}

}  // namespace
}  // namespace orvik
