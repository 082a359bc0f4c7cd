// The recovery copy of one window, and what others have left.
#include <gmock/gmock.h>

#include <filesystem>

#include "base/Paths.h"
#include "files/ProjectText.h"
#include "files/RecoveryCopy.h"
#include "stream/clsIOStream.h"
#include "support/ProjectText.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using test::ProjectText;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

class RecoveryCopyTest : public testing::Test {
 protected:
  std::unique_ptr<RecoveryCopy> Window() {
    return std::make_unique<RecoveryCopy>(copies_, [this] { return now_; });
  }
  std::size_t FilesLeft() const {
    std::error_code error;
    std::size_t count = 0;
    for (std::filesystem::directory_iterator file(PathFromUtf8(copies_), error), end;
         !error && file != end; ++file) {
      ++count;
    }
    return count;
  }
  // Another window that wrote this and is gone.
  void LeaveBehind(const std::string& text, const std::string& path = "") {
    ASSERT_TRUE(Window()->Write(text, path));
  }

  test::TempFolder folder_;
  std::string copies_ = WithEndingSeparator(folder_ / "state/Recovery");
  ClockTime now_{{2026, 3, 14}, 23, 59, 55};
};

TEST_F(RecoveryCopyTest, IsDueAtFirstAndTenSecondsAfterTheLastOne) {
  const auto window = Window();
  EXPECT_TRUE(window->IsDue());
  EXPECT_TRUE(window->Write("text", ""));
  EXPECT_FALSE(window->IsDue());
  now_ = {{2026, 3, 15}, 0, 0, 4};
  EXPECT_FALSE(window->IsDue());
  now_.second = 5;
  EXPECT_TRUE(window->IsDue());
}

TEST_F(RecoveryCopyTest, IsDueWhereTheClockWasSetBack) {
  const auto window = Window();
  EXPECT_TRUE(window->Write("text", ""));
  now_.hour = 22;
  EXPECT_TRUE(window->IsDue());
}

TEST_F(RecoveryCopyTest, IsNobodyElsesWhileItsWindowLives) {
  auto window = Window();
  ASSERT_TRUE(window->Write("text", "/a/Pond.kav"));
  EXPECT_THAT(Window()->Offers(), IsEmpty());
  EXPECT_THAT(window->Offers(), IsEmpty());
  window.reset();
  const auto offers = Window()->Offers();
  ASSERT_EQ(offers.size(), 1U);
  EXPECT_EQ(offers[0].text, "text");
  EXPECT_EQ(offers[0].path, "/a/Pond.kav");
  EXPECT_EQ(offers[0].Name(), "Pond.kav");
  EXPECT_EQ(offers[0].time, "2026-03-14 23:59:55");
}

TEST_F(RecoveryCopyTest, EachWindowHasOneCopyTheLast) {
  const auto window = Window();
  EXPECT_TRUE(window->Write("first", ""));
  EXPECT_TRUE(window->Write("second", ""));
  EXPECT_EQ(FilesLeft(), 2U) << "the copy and its lock";
  window->SetAside();
  EXPECT_THAT(window->Offers(), ElementsAre(Field(&RecoveryOffer::text, "second")));
}

TEST_F(RecoveryCopyTest, ACopyThatWasSetAsideIsNotWrittenOver) {
  const auto window = Window();
  EXPECT_TRUE(window->Write("first", ""));
  window->SetAside();
  EXPECT_TRUE(window->IsDue()) << "of the next work there is none";
  now_.second = 56;
  EXPECT_TRUE(window->Write("second", ""));
  window->SetAside();
  EXPECT_THAT(window->Offers(), ElementsAre(Field(&RecoveryOffer::text, "second"),
                                            Field(&RecoveryOffer::text, "first")))
      << "the newest first";
}

TEST_F(RecoveryCopyTest, OfSavedWorkNothingIsLeft) {
  auto window = Window();
  EXPECT_TRUE(window->Write("text", ""));
  window->Remove();
  window.reset();
  EXPECT_EQ(FilesLeft(), 0U);
}

TEST_F(RecoveryCopyTest, OfAWindowThatWroteNothingThereIsNotEvenAFolder) {
  Window()->Remove();
  EXPECT_THAT(Window()->Offers(), IsEmpty());
  EXPECT_FALSE(FolderExists(folder_ / "state"));
}

TEST_F(RecoveryCopyTest, WithoutAFolderItCannotBeWritten) {
  RecoveryCopy copy("", [this] { return now_; });
  EXPECT_FALSE(copy.Write("text", ""));
  EXPECT_FALSE(copy.IsDue()) << "not tried again at every key";
  EXPECT_THAT(copy.Offers(), IsEmpty());
}

TEST_F(RecoveryCopyTest, WhatIsTakenIsNobodyElsesUntilItIsGivenBack) {
  LeaveBehind("text");
  const auto window = Window();
  const auto other = Window();
  const std::string id = window->Offers().at(0).id;
  ASSERT_TRUE(window->Take(id));
  EXPECT_THAT(other->Offers(), IsEmpty());
  EXPECT_FALSE(other->Take(id));
  other->Discard(id);
  window->GiveBack();
  EXPECT_EQ(other->Take(id)->text, "text") << "nor could it be discarded";
}

TEST_F(RecoveryCopyTest, WhatIsDiscardedIsGone) {
  LeaveBehind("text");
  const auto window = Window();
  window->Discard(window->Offers().at(0).id);
  EXPECT_EQ(FilesLeft(), 0U);
}

TEST_F(RecoveryCopyTest, OtherFilesOfTheFolderAreNeitherOfferedNorTaken) {
  folder_.Write("state/Recovery/notes.kav", ProjectText());
  folder_.Write("state/Recovery/0123456789abcdef.kav", "without its heading");
  folder_.Write("state/Pond.kav", "text[ORVIK recovery]\r\n");
  EXPECT_THAT(Window()->Offers(), IsEmpty());
  EXPECT_FALSE(Window()->Take("../Pond"));
  EXPECT_FALSE(Window()->Take("notes"));
}

TEST_F(RecoveryCopyTest, TheFiftyNewestAreKept) {
  for (int i = 0; i < 60; ++i) {
    now_ = {{2026, 3, 14}, 1, i, 0};
    LeaveBehind(std::to_string(i));
  }
  const auto offers = Window()->Offers();
  EXPECT_EQ(offers.front().text, "59");
  EXPECT_EQ(offers.size(), 51U) << "50 when the last one came";
  EXPECT_EQ(offers.back().text, "9");
}

TEST_F(RecoveryCopyTest, ALineEndInThePathEndsNoEntry) {
  LeaveBehind("text", "/a\r\ntime=1/Pond.kav");
  EXPECT_EQ(Window()->Offers().at(0).path, "/a time=1/Pond.kav");
}

// The user can open the copy as any project, where all else fails.
TEST_F(RecoveryCopyTest, TheCopyIsAProjectFile) {
  LeaveBehind(ProjectText());
  const std::string path = copies_ + Window()->Offers().at(0).id + ".kav";
  clsIOStream stream;
  stream.OpenFile(path, enumIOStreamMode::AsciiFileInput);
  EXPECT_TRUE(ReadProject(stream).isWhole);
}

#ifndef _WIN32
TEST_F(RecoveryCopyTest, NobodyElseMayLookIntoTheFolder) {
  LeaveBehind("text");
  EXPECT_EQ(std::filesystem::status(PathFromUtf8(copies_)).permissions(),
            std::filesystem::perms::owner_all);
}
#endif

}  // namespace
}  // namespace orvik
