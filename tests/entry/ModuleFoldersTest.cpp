// The folders that the module settles on its first use.
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "entry/ModuleFolders.h"
#include "support/AnsweringDesktop.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

class SettleFoldersTest : public testing::Test {
 protected:
  std::string In(std::string_view name) const { return WithEndingSeparator(folder_ / name); }
  ModuleFolders Settle(std::optional<std::string> documents) {
    desktop_.DocumentsFolder(std::move(documents));
    return SettleFolders("/app", desktop_);
  }

  test::TempFolder folder_;
  test::AnsweringDesktop desktop_;
};

TEST_F(SettleFoldersTest, MakesItsFoldersBelowTheDocuments) {
  ASSERT_TRUE(MakeDirectory(folder_ / "Documents"));
  for (const char* round : {"made", "found"}) {
    const ModuleFolders folders = Settle(folder_ / "Documents");
    EXPECT_EQ(folders.application, WithEndingSeparator("/app")) << round;
    EXPECT_EQ(folders.documents, In("Documents")) << round;
    EXPECT_EQ(folders.suite, WithEndingSeparator(In("Documents") + "ORVIK33")) << round;
    EXPECT_EQ(folders.module, WithEndingSeparator(folders.suite + "StormwaterReuse")) << round;
    EXPECT_TRUE(FolderExists(folders.module)) << round;
  }
}

TEST_F(SettleFoldersTest, NamesTheFolderOfRecoveryCopiesAndLeavesItUnmade) {
  EXPECT_EQ(Settle(std::nullopt).recovery, "");
  desktop_.StateFolder(folder_ / "state");
  const std::string recovery = Settle(std::nullopt).recovery;
  EXPECT_EQ(PathFromUtf8(recovery),
            PathFromUtf8(folder_ / "state/ORVIK33/StormwaterReuse/Recovery/"));
  EXPECT_FALSE(FolderExists(folder_ / "state"));
}

TEST_F(SettleFoldersTest, WithoutDocumentsNothingIsMade) {
  for (const auto& documents : {std::optional<std::string>(), std::optional(folder_ / "missing")}) {
    const ModuleFolders folders = Settle(documents);
    EXPECT_EQ(folders.documents + folders.suite + folders.module, "");
    EXPECT_FALSE(FolderExists(folder_ / "missing"));
  }
}

TEST_F(SettleFoldersTest, AFileInTheWayLeavesTheFoldersEmpty) {
  folder_.Write("ORVIK33", "a file");
  const ModuleFolders folders = Settle(folder_.Path());
  EXPECT_EQ(folders.documents, folder_.Path());
  EXPECT_EQ(folders.suite + folders.module, "");
}

TEST_F(SettleFoldersTest, AFileInTheWayOfTheModulesFolderLeavesOnlyThatEmpty) {
  folder_.Write("ORVIK33/StormwaterReuse", "a file");
  const ModuleFolders folders = Settle(folder_.Path());
  EXPECT_EQ(folders.suite, In("ORVIK33"));
  EXPECT_EQ(folders.module, "");
}

}  // namespace
}  // namespace orvik
