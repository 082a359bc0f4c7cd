#include <gtest/gtest.h>

#include "base/Paths.h"
#include "curves/FileError.h"
#include "curves/OutputFile.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

TEST(WriteOutputFile, ReplacesAFileByteForByteAndLeavesNothingElse) {
  const test::TempFolder folder;
  const std::string path = folder.Write("a.crv", "old and longer");
  WriteOutputFile(path, "new\r\n");
  EXPECT_EQ(test::ReadBytes(path), "new\r\n");
  EXPECT_FALSE(FileExists(path + ".new"));
}

TEST(WriteOutputFile, SaysWhichFileCannotBeWritten) {
  const test::TempFolder folder;
  EXPECT_THROW(WriteOutputFile(folder / "no such folder/a.crv", "x"), FileError);
  MakeOutputFolder(folder / "taken");
  EXPECT_THROW(WriteOutputFile(folder / "taken", "x"), FileError);
  EXPECT_FALSE(FileExists(folder / "taken.new"));
}

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
