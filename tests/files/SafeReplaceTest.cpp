#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <iterator>
#include <thread>

#include "base/Paths.h"
#include "files/SafeReplace.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

class ReplaceFileTest : public testing::Test {
 protected:
  void ExpectOnlyThe(const std::string& bytes) {
    EXPECT_EQ(test::ReadBytes(path_), bytes);
    EXPECT_EQ(CountFiles(), 1);
  }
  std::ptrdiff_t CountFiles() {
    const std::filesystem::directory_iterator files(PathFromUtf8(folder_.Path()));
    return std::distance(begin(files), end(files));
  }

  test::TempFolder folder_;
  std::string path_ = folder_.Write("é.kav", "old");
};

TEST_F(ReplaceFileTest, TakesTheOldOnesPlace) {
  EXPECT_TRUE(ReplaceFile(path_, "new"));
  ExpectOnlyThe("new");
}

TEST_F(ReplaceFileTest, MakesAFileThatWasNotThere) {
  std::filesystem::remove(PathFromUtf8(path_));
  EXPECT_TRUE(ReplaceFile(path_, "new"));
  ExpectOnlyThe("new");
}

// Two windows, each with its own project, save into one folder again and again.
TEST_F(ReplaceFileTest, TwoAtATimeInOneFolderEachSaveTheirOwn) {
  constexpr int kRounds = 300;
  std::atomic<int> refused = 0;
  std::atomic<int> exchanged = 0;
  const auto save = [&](const std::string& name) {
    const std::string path = folder_ / name;
    for (int round = 0; round < kRounds; ++round) {
      const std::string text = "project of " + name + " as of round " + std::to_string(round);
      if (!ReplaceFile(path, text)) ++refused;
      if (test::ReadBytes(path) != text) ++exchanged;
    }
  };
  std::thread other(save, "other.kav");
  save("é.kav");
  other.join();
  EXPECT_EQ(refused, 0);
  EXPECT_EQ(exchanged, 0);
  EXPECT_EQ(CountFiles(), 2) << "nothing is left beside them";
}

TEST_F(ReplaceFileTest, ANameAsLongAsTheSystemTakesIsSaved) {
  const std::string longName = folder_ / (std::string(251, 'x') + ".kav");  // 255 characters
  EXPECT_TRUE(ReplaceFile(longName, "new"));
  EXPECT_EQ(test::ReadBytes(longName), "new");
}

#ifndef _WIN32  // links and permission bits are another matter there
TEST_F(ReplaceFileTest, FollowsALinkAndKeepsThePermissions) {
  namespace fs = std::filesystem;
  const fs::path link = PathFromUtf8(folder_ / "link.kav");
  fs::create_symlink(PathFromUtf8(path_), link);
  fs::permissions(PathFromUtf8(path_), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(ReplaceFile(PathToUtf8(link), "new"));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(fs::status(PathFromUtf8(path_)).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}
#endif

}  // namespace
}  // namespace orvik
