#include <gtest/gtest.h>

#include "base/Paths.h"

namespace orvik {
namespace {

TEST(Paths, FileNameAndFolderOfAPath) {
  const struct {
    const char* path;
    const char* name;
    const char* folder;
  } rows[] = {{"/projects/Pond é.kav", "Pond é.kav", "/projects/"},
              {"Pond.kav", "Pond.kav", ""},
              {"a.b/c", "c", "a.b/"},
              {"", "", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(FileNameOf(row.path), row.name) << row.path;
    std::string folder = FolderOf(row.path);
    for (char& c : folder) {
      if (c == '\\') c = '/';
    }
    EXPECT_EQ(folder, row.folder) << row.path;
  }
}

TEST(AsciiOf, IsEmptyWhereTheNameIsMoreThanAscii) {
  EXPECT_EQ(AsciiOf("~kav-0f.tmp"), "~kav-0f.tmp");
  EXPECT_EQ(AsciiOf(PathFromUtf8("~kav-é.tmp")), "");
}

#ifdef _WIN32
// Names of files on Windows can have half of a character outside of the basic plane.
TEST(AsciiOf, TakesNamesThatAreNoText) {
  EXPECT_EQ(AsciiOf(std::filesystem::path(L"a\xD800")), "");
}
#endif

}  // namespace
}  // namespace orvik
