// The safe writer on a system that refuses: what may be lost, and what is said.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/Paths.h"
#include "base/SafeFile.h"
#include "base/SystemFiles.h"
#include "support/TempFolder.h"

namespace {

// What the system refuses, while a test plants it.
struct Refusals {
  int rename = 0;     // the error, 0 for none
  int changing = 0;   // of changing a file's owner
  int removing = 0;   // of removing a file
  int truncates = 0;  // so many cuts of a file to its length fail
};
Refusals refusals;

int Refuse(int error) {
  errno = error;
  return -1;
}

}  // namespace

// In place of the C library's functions, for the whole test program.
extern "C" {
int rename(const char* from, const char* to) noexcept {
  if (refusals.rename != 0) return Refuse(refusals.rename);
  return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (refusals.changing != 0) return Refuse(refusals.changing);
  return static_cast<int>(syscall(SYS_fchown, file, owner, group));
}
int remove(const char* path) noexcept {
  if (refusals.removing != 0) return Refuse(refusals.removing);
  const bool isFolder = std::filesystem::is_directory(std::filesystem::symlink_status(path));
  return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, isFolder ? AT_REMOVEDIR : 0));
}
int ftruncate(int file, off_t size) noexcept {
  if (refusals.truncates > 0) {
    --refusals.truncates;
    return Refuse(EIO);
  }
  return static_cast<int>(syscall(SYS_ftruncate, file, size));
}
}

namespace orvik {
namespace {

namespace fs = std::filesystem;
using testing::Test;

class SafeFileFaults : public Test {
 protected:
  void TearDown() override { refusals = {}; }

  fs::path Place(std::string_view name) const { return PathFromUtf8(folder_ / name); }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(PathFromUtf8(folder_.Path()))) {
      names.push_back(PathToUtf8(file.path().filename()));
    }
    std::ranges::sort(names);
    return names;
  }
  using NameList = std::vector<std::string>;

  test::TempFolder folder_;
  std::string path_ = folder_.Write("Pond.kav", "old and longer");
};

// --- Where only the rename is refused ---

TEST_F(SafeFileFaults, AFileThatCannotBeReplacedIsWrittenItself) {
  refusals.rename = EBUSY;
  EXPECT_EQ(WriteFileSafely(path_, "new"), WriteOutcome{});
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(Names(), NameList{"Pond.kav"});
}

TEST_F(SafeFileFaults, AWriteThatBreaksOffPutsTheOldFileBack) {
  refusals.rename = EBUSY;
  refusals.truncates = 1;
  EXPECT_EQ(WriteFileSafely(path_, "new"), WriteOutcome{WriteFault::NotWritten});
  EXPECT_EQ(test::ReadBytes(path_), "old and longer");
  EXPECT_EQ(Names(), NameList{"Pond.kav"});
}

TEST_F(SafeFileFaults, WhereTheOldFileCannotBePutBackItsCopyIsNamed) {
  refusals.rename = EBUSY;
  refusals.truncates = 2;
  const std::string copy = folder_ / "Pond (before saving).kav";
  EXPECT_EQ(WriteFileSafely(path_, "new"), (WriteOutcome{WriteFault::NotWritten, copy}));
  EXPECT_EQ(test::ReadBytes(copy), "old and longer");
  EXPECT_EQ(Names(), (NameList{"Pond (before saving).kav", "Pond.kav"}));
}

// The name of the copy is taken: what lies there stays.
TEST_F(SafeFileFaults, TheCopyTakesAFreeName) {
  folder_.Write("Pond (before saving).kav", "the user's own");
  refusals.rename = EBUSY;
  refusals.truncates = 2;
  EXPECT_EQ(WriteFileSafely(path_, "new").oldCopy, folder_ / "Pond (before saving 2).kav");
  EXPECT_EQ(test::ReadBytes(folder_ / "Pond (before saving).kav"), "the user's own");
}

TEST_F(SafeFileFaults, ACopyThatCannotBeRemovedAfterTheWriteIsNamed) {
  refusals.rename = EBUSY;
  refusals.removing = EPERM;
  const std::string copy = folder_ / "Pond (before saving).kav";
  EXPECT_EQ(WriteFileSafely(path_, "new"), (WriteOutcome{std::nullopt, copy}));
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(test::ReadBytes(copy), "old and longer");
}

TEST_F(SafeFileFaults, ANewFileWhoseRenameIsRefusedLeavesNothing) {
  refusals.rename = EACCES;
  EXPECT_EQ(WriteFileSafely(folder_ / "new.kav", "new"), WriteOutcome{WriteFault::NotWritten});
  EXPECT_EQ(Names(), NameList{"Pond.kav"});
}

// --- The owner ---

// A file of somebody else that we may write stays theirs, and is no new file of ours.
TEST_F(SafeFileFaults, AFileWhoseOwnerCannotBeKeptIsWrittenItself) {
  struct stat before {};
  if (chown(path_.c_str(), 12345, 12345) != 0) GTEST_SKIP() << "only the superuser can plant it";
  ASSERT_EQ(stat(path_.c_str(), &before), 0);
  refusals.changing = EPERM;
  EXPECT_EQ(WriteFileSafely(path_, "new"), WriteOutcome{});
  struct stat after {};
  ASSERT_EQ(stat(path_.c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, 12345U);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(Names(), NameList{"Pond.kav"});
}

TEST_F(SafeFileFaults, ACopyOfSomebodyElsesFileIsReadableForItsWriterOnly) {
  if (chown(path_.c_str(), 12345, 12345) != 0) GTEST_SKIP() << "only the superuser can plant it";
  refusals.changing = EPERM;
  const auto copy = KeepCopyBeside(path_, "kept");
  ASSERT_TRUE(copy);
  EXPECT_EQ(fs::status(PathFromUtf8(*copy)).permissions(), fs::perms{0600});
}

// --- A copy beside a file ---

TEST_F(SafeFileFaults, ACopySaysWhyItIsThereAndHoldsTheBytes) {
  const auto copy = KeepCopyBeside(path_, "kept");
  EXPECT_EQ(copy, folder_ / "Pond (kept).kav");
  EXPECT_EQ(test::ReadBytes(*copy), "old and longer");
  EXPECT_EQ(KeepCopyBeside(path_, "kept"), folder_ / "Pond (kept 2).kav");
}

// 83 x 3 bytes of "中" and ".kav" are 253; " (kept)" needs 7 more than the two that are left.
TEST_F(SafeFileFaults, ANameThatIsTooLongForACopyLosesWholeLetters) {
  std::string stem;
  for (int i = 0; i < 83; ++i) stem += "中";
  const auto copy = KeepCopyBeside(folder_.Write(stem + ".kav", "x"), "kept");
  ASSERT_TRUE(copy);
  EXPECT_EQ(FileNameOf(*copy), stem.substr(0, std::size_t{3} * 81) + " (kept).kav");
}

TEST_F(SafeFileFaults, OfAFileThatIsNotThereThereIsNoCopy) {
  EXPECT_EQ(KeepCopyBeside(folder_ / "none.kav", "kept"), std::nullopt);
}

// --- What killed writers left ---

class Abandoned : public SafeFileFaults {
 protected:
  // A file that was last written to so long ago.
  std::string Leave(std::string_view name, std::chrono::minutes ago) {
    const std::string path = folder_.Write(name, "half a proj");
    fs::last_write_time(PathFromUtf8(path), fs::file_time_type::clock::now() - ago);
    return path;
  }
};

TEST_F(Abandoned, IsRemovedWhenTheNextFileIsWritten) {
  Leave("~kav-0123456789abcdef.tmp", std::chrono::minutes(11));
  Leave("~kav-7.tmp", std::chrono::hours(240));
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_EQ(Names(), NameList{"Pond.kav"});
}

TEST_F(Abandoned, StaysWhileItMayStillBeWritten) {
  Leave("~kav-0123456789abcdef.tmp", std::chrono::minutes(9));
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_EQ(Names(), (NameList{"Pond.kav", "~kav-0123456789abcdef.tmp"}));
}

TEST_F(Abandoned, StaysWhileALivingWriterKeepsItLocked) {
  const std::string left = Leave("~kav-1.tmp", std::chrono::hours(1));
  const int writer = open(left.c_str(), O_WRONLY | O_CLOEXEC);
  ASSERT_EQ(flock(writer, LOCK_EX), 0);
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_TRUE(FileExists(left));
  close(writer);
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_FALSE(FileExists(left)) << "its writer is gone";
}

TEST_F(Abandoned, FilesOfOtherNamesStayHoweverOld) {
  const NameList others{"Pond.kav",       "~kav-.tmp",  "~kav-0123456789abcdef0.tmp",
                        "~kav-1.tmp.bak", "~kav-G.tmp", "~saving1.kav"};
  for (const std::string& name : others) Leave(name, std::chrono::hours(1));
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_EQ(Names(), others);
}

TEST_F(Abandoned, ALinkThatIsNamedSoStays) {
  const std::string other = Leave("other", std::chrono::hours(1));
  fs::create_symlink(PathFromUtf8(other), Place("~kav-1.tmp"));
  fs::create_directory(Place("~kav-2.tmp"));
  EXPECT_TRUE(WriteFileSafely(path_, "new").IsWritten());
  EXPECT_EQ(Names(), (NameList{"Pond.kav", "other", "~kav-1.tmp", "~kav-2.tmp"}));
}

}  // namespace
}  // namespace orvik
