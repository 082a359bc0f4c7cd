// The safe writer where another program holds the file open, as the system lets it.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <iterator>

#include "base/Paths.h"
#include "base/SafeFile.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

// A file that another program has open, and shares as said.
class HeldFile {
 public:
  HeldFile(const std::string& path, DWORD sharing)
      : file_(CreateFileW(PathFromUtf8(path).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile() { CloseHandle(file_); }

  bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE file_;
};

class HeldFileTest : public testing::Test {
 protected:
  std::ptrdiff_t CountFiles() const {
    const fs::directory_iterator files(PathFromUtf8(folder_.Path()));
    return std::distance(begin(files), end(files));
  }

  test::TempFolder folder_;
  std::string path_ = folder_.Write("Pond.kav", "old and longer");
};

TEST_F(HeldFileTest, AFileThatCanBeWrittenButNotReplacedIsWrittenItself) {
  {
    const HeldFile held(path_, FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(held.IsOpen());
    const WriteOutcome outcome = WriteFileSafely(path_, "new");
    EXPECT_TRUE(outcome.IsWritten());
    EXPECT_EQ(outcome.oldCopy, "");
  }
  EXPECT_EQ(test::ReadBytes(path_), "new");
  EXPECT_EQ(CountFiles(), 1) << "the copy of the old file is gone";
}

TEST_F(HeldFileTest, AFileThatCannotBeWrittenIsInUseAndUnchanged) {
  {
    const HeldFile held(path_, FILE_SHARE_READ);
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(WriteFileSafely(path_, "new").fault, WriteFault::InUse);
  }
  EXPECT_EQ(test::ReadBytes(path_), "old and longer");
  EXPECT_EQ(CountFiles(), 1);
}

}  // namespace
}  // namespace orvik
