// The sentences about files that kav cannot write; how files are written is tested in tests/base.
#include <gtest/gtest.h>

#include <filesystem>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "base/FileError.h"
#include "base/Paths.h"
#include "cli/OutputFile.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

// What is said of the path, which is the same before the work and after it.
std::string FaultOf(const std::string& path) {
  std::string before = "replaceable";
  try {
    RequireReplaceable(path);
  } catch (const FileError& error) {
    before = error.what();
  }
  try {
    WriteOutputFile(path, "x");
    return before == "replaceable" ? "written" : before;
  } catch (const FileError& error) {
    EXPECT_TRUE(before == "replaceable" || before == error.what()) << before;
    return error.what();
  }
}

std::string Sentence(const std::string& path, const std::string& reason) {
  return "The file " + path + " cannot be written" + reason;
}

TEST(WriteOutputFile, WritesTheBytes) {
  const test::TempFolder folder;
  EXPECT_EQ(FaultOf(folder / "a.crv"), "written");
  EXPECT_EQ(test::ReadBytes(folder / "a.crv"), "x");
}

TEST(WriteOutputFile, SaysWhichFileCannotBeWritten) {
  const test::TempFolder folder;
  const std::string path = folder / "no such folder/a.crv";
  EXPECT_EQ(FaultOf(path), Sentence(path, ": its folder does not exist."));
}

TEST(WriteOutputFile, SaysThatAFolderIsOne) {
  const test::TempFolder folder;
  MakeOutputFolder(folder / "taken");
  EXPECT_EQ(FaultOf(folder / "taken"), Sentence(folder / "taken", ": it is a folder."));
}

TEST(WriteOutputFile, SaysThatAFileIsReadOnly) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.crv", "old");
  using std::filesystem::perms;
  std::filesystem::permissions(PathFromUtf8(path), perms::owner_read);
  EXPECT_EQ(FaultOf(path), Sentence(path, ": it is read-only."));
  std::filesystem::permissions(PathFromUtf8(path), perms::owner_read | perms::owner_write);
  EXPECT_EQ(test::ReadBytes(path), "old");
}

#ifndef _WIN32  // making links takes a privilege there; pipes are another matter
TEST(WriteOutputFile, SaysThatLinksLeadInACircle) {
  const test::TempFolder folder;
  std::filesystem::create_symlink("link", PathFromUtf8(folder / "link"));
  EXPECT_EQ(FaultOf(folder / "link"), Sentence(folder / "link", ": its links lead in a circle."));
}

TEST(WriteOutputFile, SaysThatAPipeIsNoFile) {
  const test::TempFolder folder;
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(FaultOf(pipe), Sentence(pipe, ": it is a device or a pipe, not a file."));
}
#endif

TEST(MakeOutputFolder, MakesFoldersOnTheWay) {
  const test::TempFolder folder;
  MakeOutputFolder(folder / "a/b");
  EXPECT_TRUE(FolderExists(folder / "a/b"));
  MakeOutputFolder(folder / "a/b");
  folder.Write("file", "");
  EXPECT_THROW(MakeOutputFolder(folder / "file"), FileError);
}

}  // namespace
}  // namespace orvik
