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

}  // namespace
}  // namespace orvik
