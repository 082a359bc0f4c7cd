#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#endif

#include "base/Paths.h"
#include "base/SystemFiles.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

NewFileOutcome Write(const std::string& path, std::string_view bytes) {
  return WriteNewFile(PathFromUtf8(path), bytes, {});
}

TEST(WriteNewFile, HoldsTheBytesAsTheyAre) {
  const test::TempFolder folder;
  const std::string bytes("a\r\n\0\xFF", 5);
  EXPECT_EQ(Write(folder / "é.tmp", bytes), NewFileOutcome::Written);
  EXPECT_EQ(test::ReadBytes(folder / "é.tmp"), bytes);
}

TEST(WriteNewFile, ANameThatIsTakenIsRefusedAndItsFileKept) {
  const test::TempFolder folder;
  const std::string path = folder.Write("mine", "mine");
  EXPECT_EQ(Write(path, "other"), NewFileOutcome::NameTaken);
  EXPECT_EQ(test::ReadBytes(path), "mine");
}

TEST(WriteNewFile, FailsWhereThereIsNoFolder) {
  const test::TempFolder folder;
  EXPECT_EQ(Write(folder / "none/a", "x"), NewFileOutcome::Failed);
}

TEST(WriteNewFile, OfTwoWritersWithOneNameOneGetsIt) {
  const test::TempFolder folder;
  for (int round = 0; round < 50; ++round) {
    const std::string path = folder / std::to_string(round);
    std::atomic<int> written = 0;
    const auto want = [&] {
      if (Write(path, "x") == NewFileOutcome::Written) ++written;
    };
    std::thread other(want);
    want();
    other.join();
    EXPECT_EQ(written, 1) << round;
  }
}

#ifndef _WIN32  // links and limits of a file's size are another matter there
TEST(WriteNewFile, DoesNotFollowALink) {
  const test::TempFolder folder;
  std::filesystem::create_symlink("elsewhere", PathFromUtf8(folder / "link"));
  EXPECT_EQ(Write(folder / "link", "x"), NewFileOutcome::NameTaken);
  EXPECT_FALSE(FileExists(folder / "elsewhere"));
}

// Files may grow to so many bytes while this lives, as on a disk that is nearly full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(WriteNewFile, LeavesNothingWhereTheDiskIsFull) {
  const test::TempFolder folder;
  NewFileOutcome outcome{};
  {
    const FileSizeLimit limit(3);
    outcome = Write(folder / "a", "four");
  }
  EXPECT_EQ(outcome, NewFileOutcome::DiskFull);
  EXPECT_FALSE(FileExists(folder / "a"));
}
#endif

#ifndef _WIN32
// A private project stays private while it is written, and its owner's where the superuser saves.
TEST(WriteNewFile, GetsPermissionsAndOwnerOfTheOldFile) {
  const test::TempFolder folder;
  const std::string old = folder.Write("old", "old");
  ASSERT_EQ(chmod(old.c_str(), 0600), 0);
  const uid_t owner = geteuid() == 0 ? 12345 : geteuid();
  ASSERT_EQ(chown(old.c_str(), owner, getegid()), 0);
  EXPECT_EQ(WriteNewFile(PathFromUtf8(folder / "new"), "new", PathFromUtf8(old)),
            NewFileOutcome::Written);
  struct stat status {};
  ASSERT_EQ(stat((folder / "new").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0600U);
  EXPECT_EQ(status.st_uid, owner);
}
#endif

TEST(RenameOver, ARefusedRenameLeavesBothFiles) {
  const test::TempFolder folder;
  const std::string file = folder.Write("file", "mine");
  folder.Write("folder/inside", "x");
  EXPECT_FALSE(RenameOver(PathFromUtf8(file), PathFromUtf8(folder / "folder")));
  EXPECT_EQ(test::ReadBytes(file), "mine");
  EXPECT_EQ(test::ReadBytes(folder / "folder/inside"), "x");
}

}  // namespace
}  // namespace orvik
