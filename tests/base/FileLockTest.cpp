#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

#include "base/FileLock.h"
#include "base/Paths.h"
#include "base/UserFolders.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

TEST(FileLock, HasOneOwnerAndGoesWithIt) {
  const test::TempFolder folder;
  const std::string path = folder / "é.lock";
  auto first = FileLock::Take(path);
  ASSERT_TRUE(first);
  EXPECT_TRUE(FileExists(path));
  EXPECT_FALSE(FileLock::Take(path));
  first.reset();
  EXPECT_FALSE(FileExists(path));
  EXPECT_TRUE(FileLock::Take(path));
}

TEST(FileLock, AFileThatADeadProgramLeftCanBeTaken) {
  const test::TempFolder folder;
  EXPECT_TRUE(FileLock::Take(folder.Write("left.lock", "")));
}

TEST(FileLock, WithoutItsFolderThereIsNone) {
  const test::TempFolder folder;
  EXPECT_FALSE(FileLock::Take(folder / "none/a.lock"));
  EXPECT_FALSE(FileLock::Take(std::string("a\0b", 3)));
}

#ifndef _WIN32
// A variable of the environment while this lives.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    const char* old = std::getenv(name);
    if (old) old_ = old;
    value ? setenv(name, value, 1) : unsetenv(name);
  }
  ~Variable() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(UserStateFolder, IsThatOfTheEnvironmentElseBelowTheHome) {
  const Variable home("HOME", "/home/user");
  {
    const Variable state("XDG_STATE_HOME", "/state");
    EXPECT_EQ(UserStateFolder(), "/state");
  }
  for (const char* none : {static_cast<const char*>(nullptr), "", "relative"}) {
    const Variable state("XDG_STATE_HOME", none);
    EXPECT_EQ(UserStateFolder(), "/home/user/.local/state");
    const Variable noHome("HOME", none);
    EXPECT_EQ(UserStateFolder(), std::nullopt);
  }
}
#endif

}  // namespace
}  // namespace orvik
