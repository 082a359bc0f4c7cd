#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/Paths.h"
#include "files/SafeReplace.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

class ReplaceFileTest : public testing::Test {
 protected:
  // Writes `bytes` where it is asked to, and answers `answer`.
  static auto Writer(const std::string& bytes, bool answer = true) {
    return [bytes, answer](const std::string& besides) {
      std::ofstream(PathFromUtf8(besides), std::ios::binary) << bytes;
      return answer;
    };
  }
  void ExpectOnlyThe(const std::string& bytes) {
    EXPECT_EQ(test::ReadBytes(path_), bytes);
    int files = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator(PathFromUtf8(folder_.Path()))) {
      ++files;
    }
    EXPECT_EQ(files, 1);
  }

  test::TempFolder folder_;
  std::string path_ = folder_.Write("é.kav", "old");
};

TEST_F(ReplaceFileTest, TakesTheOldOnesPlace) {
  EXPECT_TRUE(ReplaceFile(path_, "new", Writer("new")));
  ExpectOnlyThe("new");
}

TEST_F(ReplaceFileTest, MakesAFileThatWasNotThere) {
  std::filesystem::remove(PathFromUtf8(path_));
  EXPECT_TRUE(ReplaceFile(path_, "new", Writer("new")));
  ExpectOnlyThe("new");
}

TEST_F(ReplaceFileTest, AHalfWrittenFileIsRemovedThoughItsWriterNoticedNothing) {
  EXPECT_FALSE(ReplaceFile(path_, "new", Writer("ne")));
  ExpectOnlyThe("old");
}

TEST_F(ReplaceFileTest, AWriterThatFailsLeavesTheOldFile) {
  EXPECT_FALSE(ReplaceFile(path_, "new", Writer("new", false)));
  ExpectOnlyThe("old");
  EXPECT_FALSE(ReplaceFile(path_, "", [](const std::string&) { return true; }));
  ExpectOnlyThe("old");
}

TEST_F(ReplaceFileTest, ANameAsLongAsTheSystemTakesIsSaved) {
  const std::string longName = folder_ / (std::string(251, 'x') + ".kav");  // 255 characters
  EXPECT_TRUE(ReplaceFile(longName, "new", Writer("new")));
  EXPECT_EQ(test::ReadBytes(longName), "new");
}

#ifndef _WIN32  // links and permission bits are another matter there
TEST_F(ReplaceFileTest, FollowsALinkAndKeepsThePermissions) {
  namespace fs = std::filesystem;
  const fs::path link = PathFromUtf8(folder_ / "link.kav");
  fs::create_symlink(PathFromUtf8(path_), link);
  fs::permissions(PathFromUtf8(path_), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(ReplaceFile(PathToUtf8(link), "new", Writer("new")));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(fs::status(PathFromUtf8(path_)).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}
#endif

}  // namespace
}  // namespace orvik
