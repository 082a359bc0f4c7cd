#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <thread>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "base/Paths.h"
#include "base/SafeFile.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

class WriteFileSafelyTest : public testing::Test {
 protected:
  fs::path Place(std::string_view name) const { return PathFromUtf8(folder_ / name); }
  std::ptrdiff_t CountFiles() const {
    const fs::directory_iterator files(PathFromUtf8(folder_.Path()));
    return std::distance(begin(files), end(files));
  }
  void ExpectOnlyThe(const std::string& bytes) const {
    EXPECT_EQ(test::ReadBytes(path_), bytes);
    EXPECT_EQ(CountFiles(), 1);
  }
  // Both the question before the work and the work answer this fault and change nothing.
  void ExpectFault(const std::string& path, WriteFault fault) const {
    const auto before = CountFiles();
    EXPECT_EQ(FindTargetFault(path), fault) << path;
    EXPECT_EQ(WriteFileSafely(path, "new").fault, fault) << path;
    EXPECT_EQ(CountFiles(), before) << path;
  }

  test::TempFolder folder_;
  std::string path_ = folder_.Write("é.kav", "old and longer");
};

TEST_F(WriteFileSafelyTest, ReplacesTheOldFileByteForByte) {
  EXPECT_FALSE(FindTargetFault(path_));
  EXPECT_TRUE(WriteFileSafely(path_, "new\r\n").IsWritten());
  ExpectOnlyThe("new\r\n");
}

TEST_F(WriteFileSafelyTest, CreatesAFileThatDidNotExist) {
  fs::remove(PathFromUtf8(path_));
  EXPECT_FALSE(FindTargetFault(path_));
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  ExpectOnlyThe("new");
}

// How often each writer saves; the nightly run has them save for a minute.
int SavingRounds() {
  const char* wanted = std::getenv("ORVIK_SAVING_ROUNDS");
  return wanted ? std::stoi(wanted) : 300;
}

// Two windows, each with its own project, save into one folder again and again.
TEST_F(WriteFileSafelyTest, TwoWritersInOneFolderEachWriteTheirOwnFile) {
  const int rounds = SavingRounds();
  std::atomic<int> refused = 0;
  std::atomic<int> exchanged = 0;
  const auto save = [&](const std::string& name) {
    const std::string path = folder_ / name;
    for (int round = 0; round < rounds; ++round) {
      const std::string text = "project of " + name + " as of round " + std::to_string(round);
      if (!WriteFileSafely(path, text).IsWritten()) ++refused;
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

TEST_F(WriteFileSafelyTest, ANameAsLongAsTheSystemTakesIsWritten) {
  const std::string longName = folder_ / (std::string(251, 'x') + ".kav");  // 255 characters
  EXPECT_TRUE(WriteFileSafely(longName, "new").IsWritten());
  EXPECT_EQ(test::ReadBytes(longName), "new");
}

TEST_F(WriteFileSafelyTest, FailsWhereThereIsNoFolder) {
  ExpectFault(folder_ / "none/a.kav", WriteFault::NoFolder);
  ExpectOnlyThe("old and longer");
}

TEST_F(WriteFileSafelyTest, ANameWithANulInsideWritesNoOtherFile) {
  ExpectFault(path_ + std::string("\0.bak", 5), WriteFault::NotWritten);
  ExpectOnlyThe("old and longer");
}

TEST_F(WriteFileSafelyTest, AFolderIsRefused) {
  fs::create_directory(Place("taken"));  // empty: a rename could replace it
  ExpectFault(folder_ / "taken", WriteFault::IsFolder);
  EXPECT_TRUE(FolderExists(folder_ / "taken"));
}

TEST_F(WriteFileSafelyTest, AReadOnlyFileIsRefused) {
  fs::permissions(PathFromUtf8(path_), fs::perms::owner_write, fs::perm_options::remove);
  ExpectFault(path_, WriteFault::IsReadOnly);
  fs::permissions(PathFromUtf8(path_), fs::perms::owner_write, fs::perm_options::add);
  ExpectOnlyThe("old and longer");
}

#ifndef _WIN32  // links, pipes and permission bits are another matter there
TEST_F(WriteFileSafelyTest, WritesThroughALinkToAFileAndToNothingYet) {
  fs::create_directory(Place("elsewhere"));
  for (const char* name : {"é.kav", "not yet.kav", "elsewhere/é.kav"}) {
    fs::create_symlink(PathFromUtf8(name), Place("link"));
    EXPECT_TRUE(WriteFileSafely(folder_ / "link", "new").IsWritten()) << name;
    EXPECT_TRUE(fs::is_symlink(Place("link"))) << name;
    EXPECT_EQ(test::ReadBytes(folder_ / name), "new") << name;
    fs::remove(Place("link"));
  }
}

TEST_F(WriteFileSafelyTest, ALinkToItselfIsRefused) {
  fs::create_symlink("link", Place("link"));
  ExpectFault(folder_ / "link", WriteFault::LinksInACircle);
  EXPECT_TRUE(fs::is_symlink(Place("link")));
}

TEST_F(WriteFileSafelyTest, ALinkToAReadOnlyFileIsRefused) {
  fs::create_symlink(PathFromUtf8("é.kav"), Place("link"));
  fs::permissions(PathFromUtf8(path_), fs::perms::owner_read);
  ExpectFault(folder_ / "link", WriteFault::IsReadOnly);
}

// Opening it would wait for somebody to read it.
TEST_F(WriteFileSafelyTest, APipeIsRefused) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  ExpectFault(folder_ / "pipe", WriteFault::IsNotAFile);
  EXPECT_TRUE(fs::is_fifo(Place("pipe")));
}

TEST_F(WriteFileSafelyTest, ADeviceIsRefused) {
  fs::create_symlink("/dev/null", Place("link"));
  ExpectFault(folder_ / "link", WriteFault::IsNotAFile);
}

TEST_F(WriteFileSafelyTest, KeepsThePermissions) {
  for (const unsigned mode : {0600U, 0664U, 0755U}) {
    fs::permissions(PathFromUtf8(path_), fs::perms{mode});
    EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
    EXPECT_EQ(fs::status(PathFromUtf8(path_)).permissions(), fs::perms{mode});
  }
}

TEST_F(WriteFileSafelyTest, ANewFileHasTheCommonPermissions) {
  const mode_t before = umask(027);
  EXPECT_TRUE(WriteFileSafely(folder_ / "new.kav", "new").IsWritten());
  umask(before);
  EXPECT_EQ(fs::status(Place("new.kav")).permissions(), fs::perms{0640});
}
#endif

}  // namespace
}  // namespace orvik
