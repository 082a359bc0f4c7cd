// A disk that breaks off in the middle of a file: what was read so far must not pass for the whole.
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include "stream/clsIOStream.h"
#include "support/FormFixture.h"
#include "support/ProjectText.h"

namespace {

// How many bytes can still be read before the disk breaks off; nothing for a good disk.
std::optional<std::size_t> bytesBeforeError;

}  // namespace

// In place of the C library's function, for the whole test program.
extern "C" ssize_t read(int file, void* buffer, std::size_t size) {
  if (bytesBeforeError) {
    if (*bytesBeforeError == 0) {
      errno = EIO;
      return -1;
    }
    size = std::min(size, *bytesBeforeError);
    *bytesBeforeError -= size;
  }
  return syscall(SYS_read, file, buffer, size);
}

namespace orvik {
namespace {

class ReadErrorTest : public test::FormFixture {
 protected:
  // Runs the action on a disk from which so many bytes can be read.
  template <typename Action>
  static void OnDiskBrokenAfter(std::size_t bytes, Action&& action) {
    bytesBeforeError = bytes;
    action();
    bytesBeforeError.reset();
  }
};

TEST_F(ReadErrorTest, AProjectThatBreaksOffInItsLastNumberIsNotRead) {
  auto lines = test::ProjectLines();
  lines.back() = "1.65";
  const std::string text = test::ProjectText(lines);
  const std::string path = folder_.Write("Pond.kav", text);
  OnDiskBrokenAfter(text.find("1.65") + 1, [&] {  // "1" is all that can be read of it
    EXPECT_FALSE(form_->Files().OpenProject(path));
  });
  ASSERT_EQ(desktop_.Messages().size(), 1U);
  EXPECT_EQ(desktop_.Messages()[0].text, "Error reading data file.");
  EXPECT_EQ(Text("txtProjectName"), "");
  EXPECT_TRUE(form_->Files().OpenProject(path)) << "the same file on a good disk";
}

TEST_F(ReadErrorTest, AFileThatBreaksOffIsAtItsEnd) {
  const std::string path = folder_.Write("two.txt", "one\r\ntwo\r\n");
  clsIOStream stream;
  OnDiskBrokenAfter(5,
                    [&] { EXPECT_TRUE(stream.OpenFile(path, enumIOStreamMode::AsciiFileInput)); });
  EXPECT_TRUE(stream.EndOfFile());
  std::string line = "kept";
  EXPECT_TRUE(stream.ScanString(line));
  EXPECT_EQ(line, "kept");
}

}  // namespace
}  // namespace orvik
