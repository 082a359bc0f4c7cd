#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "base/Paths.h"
#include "curves/FileError.h"
#include "curves/OutputFile.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

std::ptrdiff_t CountFiles(const test::TempFolder& folder) {
  const std::filesystem::directory_iterator files(PathFromUtf8(folder.Path()));
  return std::distance(begin(files), end(files));
}

TEST(WriteOutputFile, ReplacesAFileByteForByteAndLeavesNothingElse) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.crv", "old and longer");
  WriteOutputFile(path, "new\r\n");
  EXPECT_EQ(test::ReadBytes(path), "new\r\n");
  EXPECT_EQ(CountFiles(folder), 1);
}

TEST(WriteOutputFile, SaysWhichFileCannotBeWritten) {
  const test::TempFolder folder;
  EXPECT_THROW(WriteOutputFile(folder / "no such folder/a.crv", "x"), FileError);
  MakeOutputFolder(folder / "taken");
  EXPECT_THROW(WriteOutputFile(folder / "taken", "x"), FileError);
  EXPECT_EQ(CountFiles(folder), 1);
}

std::string FaultOf(const std::string& path) {
  try {
    WriteOutputFile(path, "x");
  } catch (const FileError& error) {
    return error.what();
  }
  return "written";
}

TEST(WriteOutputFile, LeavesOtherFilesBesideItAlone) {
  const test::TempFolder folder;
  const std::string mine = folder.Write("a.crv.new", "mine");
  WriteOutputFile(folder / "a.crv", "x");
  EXPECT_EQ(test::ReadBytes(mine), "mine");
  EXPECT_EQ(CountFiles(folder), 2);
}

TEST(WriteOutputFile, SaysThatAFolderIsOne) {
  const test::TempFolder folder;
  MakeOutputFolder(folder / "taken");  // empty: a rename could replace it
  EXPECT_EQ(FaultOf(folder / "taken"),
            "The file " + (folder / "taken") + " cannot be written: it is a folder.");
  EXPECT_TRUE(FolderExists(folder / "taken"));
  EXPECT_EQ(CountFiles(folder), 1);
}

#ifndef _WIN32  // making links takes a privilege there; pipes are another matter
TEST(WriteOutputFile, WritesThroughALink) {
  const test::TempFolder folder;
  std::error_code error;
  for (const char* name : {"there.crv", "not yet.crv"}) {
    std::filesystem::create_symlink(name, PathFromUtf8(folder / "link"), error);
    ASSERT_FALSE(error) << error.message();
    if (name == std::string("there.crv")) folder.Write(name, "old");
    WriteOutputFile(folder / "link", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(PathFromUtf8(folder / "link"))) << name;
    EXPECT_EQ(test::ReadBytes(folder / name), "new");
    std::filesystem::remove(PathFromUtf8(folder / "link"));
  }
}

TEST(WriteOutputFile, ALinkToItselfIsAFault) {
  const test::TempFolder folder;
  std::error_code error;
  std::filesystem::create_symlink("link", PathFromUtf8(folder / "link"), error);
  ASSERT_FALSE(error) << error.message();
  EXPECT_THAT(FaultOf(folder / "link"), testing::HasSubstr("cannot be written"));
  EXPECT_TRUE(std::filesystem::is_symlink(PathFromUtf8(folder / "link")));
}

TEST(WriteOutputFile, RefusesAPipe) {
  const test::TempFolder folder;
  const std::string pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(FaultOf(pipe),
            "The file " + pipe + " cannot be written: it is a device or a pipe, not a file.");
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
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
