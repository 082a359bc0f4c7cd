#include <gtest/gtest.h>

#include <sstream>

#include "base/FileBytes.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

// Gives its text and then fails, as the buffer of a file on a bad disk does.
class FailingSource : public std::streambuf {
 public:
  explicit FailingSource(std::string text) : text_(std::move(text)) {
    setg(text_.data(), text_.data(), text_.data() + text_.size());
  }

 protected:
  int_type underflow() override { throw std::ios_base::failure("bad sector"); }

 private:
  std::string text_;
};

TEST(ReadToEnd, TakesEverythingThatIsLeft) {
  std::stringbuf source(std::string("a\r\n\0\xFF", 5));
  source.sbumpc();
  EXPECT_EQ(ReadToEnd(source), std::string("\r\n\0\xFF", 4));
  EXPECT_EQ(ReadToEnd(source), "");
}

TEST(ReadToEnd, AReadErrorOnTheWayIsNotTheEnd) {
  FailingSource source("half a pro");
  EXPECT_EQ(ReadToEnd(source), std::nullopt);
}

TEST(ReadFileBytes, HoldsTheFileAsItIs) {
  const test::TempFolder folder;
  EXPECT_EQ(ReadFileBytes(folder.Write("é", "a\r\nb\n")), "a\r\nb\n");
  EXPECT_EQ(ReadFileBytes(folder.Write("empty", "")), "");
}

TEST(ReadFileBytes, IsNothingWhereThereIsNoFile) {
  const test::TempFolder folder;
  EXPECT_EQ(ReadFileBytes(folder / "none"), std::nullopt);
  EXPECT_EQ(ReadFileBytes(folder.Path()), std::nullopt);
  folder.Write("a", "x");
  EXPECT_EQ(ReadFileBytes(folder / std::string("a\0b", 3)), std::nullopt);
}

#ifdef __linux__
// A file of the system's whose first byte cannot be read: the standard library must say so.
TEST(ReadFileBytes, IsNothingWhereTheSystemReportsAReadError) {
  EXPECT_EQ(ReadFileBytes("/proc/self/mem"), std::nullopt);
}
#endif

}  // namespace
}  // namespace orvik
