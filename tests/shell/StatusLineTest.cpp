#include <gtest/gtest.h>

#include "shell/StatusLine.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

class StatusLineTest : public testing::Test {
 protected:
  std::string Saved() const { return toolkit_.Caption("lblSaved"); }
  std::string File() const { return toolkit_.Caption("lblFile"); }

  test::UserToolkit toolkit_;
  StatusLine line_{toolkit_};
};

TEST_F(StatusLineTest, NamesTheFileAndTheTimeOfSaving) {
  line_.Show({false, ClockTime{{2026, 3, 9}, 14, 5, 59}, "Ponds/Lake.kav"});
  EXPECT_EQ(Saved(), "Saved 14:05");
  EXPECT_EQ(File(), "Lake.kav");
}

TEST_F(StatusLineTest, UnsavedChangesCountMoreThanTheTimeOfSaving) {
  line_.Show({true, ClockTime{{2026, 3, 9}, 14, 5, 0}, "Lake.kav"});
  EXPECT_EQ(Saved(), "Unsaved changes");
}

TEST_F(StatusLineTest, AProjectThatWasOnlyOpenedIsNotCalledSaved) {
  line_.Show({false, std::nullopt, "Lake.kav"});
  EXPECT_EQ(Saved(), "");
}

TEST_F(StatusLineTest, AProjectWithoutAFileIsUntitled) {
  line_.Show({false, std::nullopt, ""});
  EXPECT_EQ(File(), "untitled");
}

TEST_F(StatusLineTest, WhereThereAreNoFilesNoneIsNamed) {
  line_.Show({true, std::nullopt, std::nullopt});
  EXPECT_EQ(File(), "");
}

TEST_F(StatusLineTest, AnAmpersandInTheNameIsShown) {
  line_.Show({false, std::nullopt, "Smith & Sons.kav"});
  EXPECT_EQ(File(), "Smith && Sons.kav") << "a single one would mark a mnemonic";
}

TEST_F(StatusLineTest, SaysWhatToDoWhileResultsAreOutOfDate) {
  line_.ShowOutOfDate(true);
  EXPECT_EQ(toolkit_.Caption("lblOutOfDate"), "Grey results are out of date: press Enter or F5");
  line_.ShowOutOfDate(false);
  EXPECT_EQ(toolkit_.Caption("lblOutOfDate"), "");
}

}  // namespace
}  // namespace orvik
