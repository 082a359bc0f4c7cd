// The text stream over a text in memory.
#include <gtest/gtest.h>

#include "stream/clsIOStream.h"

namespace orvik {
namespace {

using enum enumIOStreamMode;

// Reads lines until the stream answers False.
std::vector<std::string> Lines(clsIOStream& stream) {
  std::vector<std::string> lines;
  std::string line;
  while (stream.ScanString(line)) lines.push_back(line);
  return lines;
}

std::vector<std::string> LinesOf(std::string_view text) {
  clsIOStream stream;
  EXPECT_TRUE(stream.OpenFile(text, AsciiBufferInput));
  return Lines(stream);
}

using Strings = std::vector<std::string>;

TEST(ANewStream, IsClosedAndReturnsFalse) {
  clsIOStream stream;
  std::string line = "kept";
  float single = 1.5F;
  std::int16_t integer = 7;
  EXPECT_FALSE(stream.IsOpened());
  EXPECT_TRUE(stream.EndOfFile());
  EXPECT_FALSE(stream.ScanString(line));
  EXPECT_FALSE(stream.ScanSingle(single));
  EXPECT_FALSE(stream.ScanInteger(integer));
  EXPECT_FALSE(stream.WriteString("x"));
  EXPECT_FALSE(stream.CloseFile());
  EXPECT_EQ(stream.FileName(), "");
  EXPECT_EQ(stream.Buffer(), "");
  EXPECT_EQ(line, "kept");
  EXPECT_EQ(single, 1.5F);
  EXPECT_EQ(integer, 7);
}

TEST(OpenFile, RefusesAModeThatDoesNotExist) {
  for (const int mode : {0, 5, -1, 32767}) {
    clsIOStream stream;
    EXPECT_FALSE(stream.OpenFile("text", static_cast<enumIOStreamMode>(mode))) << mode;
    EXPECT_FALSE(stream.IsOpened()) << mode;
  }
}

TEST(BufferInput, RefusesAnEmptyTextAndStaysClosed) {
  clsIOStream stream;
  EXPECT_FALSE(stream.OpenFile("", AsciiBufferInput));
  EXPECT_FALSE(stream.IsOpened());
}

TEST(BufferInput, SplitsLinesAtCrLf) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("a\r\nb", AsciiBufferInput));
  std::string line;
  EXPECT_TRUE(stream.ScanString(line));
  EXPECT_EQ(line, "a");
  EXPECT_FALSE(stream.EndOfFile());
  EXPECT_TRUE(stream.ScanString(line));
  EXPECT_EQ(line, "b");
  EXPECT_TRUE(stream.EndOfFile());
  EXPECT_FALSE(stream.ScanString(line));
  EXPECT_EQ(line, "b");
}

TEST(BufferInput, TakesALoneCrAsALineEnd) {
  EXPECT_EQ(LinesOf("a\r\r\nb"), (Strings{"a", "", "b"}));
}

TEST(BufferInput, KeepsALoneLfInsideTheLine) {
  EXPECT_EQ(LinesOf("x\ny"), (Strings{"x\ny"}));
  EXPECT_EQ(LinesOf("x\n\ry"), (Strings{"x\n", "y"}));
}

TEST(BufferInput, ReturnsAnEmptyLineBetweenTwoLineEnds) {
  EXPECT_EQ(LinesOf("\r\n\r\n"), (Strings{"", ""}));
  EXPECT_EQ(LinesOf("a\r\n"), (Strings{"a"}));
  EXPECT_EQ(LinesOf("a\r"), (Strings{"a"}));
}

TEST(BufferInput, KeepsCommasBlanksAndQuotesOfALine) {
  EXPECT_EQ(LinesOf(" a, \"b\" ,c "), (Strings{" a, \"b\" ,c "}));
}

TEST(BufferInput, ScanSingleTakesOneLineAndWantsANumber) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("  12.5  \r\nabc\r\n-3\r\n\r\n1 2\r\n1e39\r\n7", AsciiBufferInput));
  float value = 0;
  EXPECT_TRUE(stream.ScanSingle(value));
  EXPECT_EQ(value, 12.5F);
  EXPECT_FALSE(stream.ScanSingle(value));  // letters; the line is consumed
  EXPECT_EQ(value, 12.5F);
  EXPECT_TRUE(stream.ScanSingle(value));
  EXPECT_EQ(value, -3.0F);
  EXPECT_FALSE(stream.ScanSingle(value));  // an empty line
  EXPECT_FALSE(stream.ScanSingle(value));  // two numbers are not one
  EXPECT_FALSE(stream.ScanSingle(value));  // beyond single precision
  EXPECT_EQ(value, -3.0F);
  EXPECT_TRUE(stream.ScanSingle(value));
  EXPECT_EQ(value, 7.0F);
  EXPECT_FALSE(stream.ScanSingle(value));
}

TEST(BufferInput, ScanIntegerTakesWholeNumbersOnly) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile(" 25 \r\n2.5\r\n3.5\r\n-1\r\n40000\r\n+3", AsciiBufferInput));
  std::int16_t value = 0;
  EXPECT_TRUE(stream.ScanInteger(value));
  EXPECT_EQ(value, 25);
  EXPECT_FALSE(stream.ScanInteger(value));  // a fraction is not a whole number
  EXPECT_FALSE(stream.ScanInteger(value));
  EXPECT_EQ(value, 25);
  EXPECT_TRUE(stream.ScanInteger(value));
  EXPECT_EQ(value, -1);
  EXPECT_FALSE(stream.ScanInteger(value));  // beyond 16 bits
  EXPECT_EQ(value, -1);
  EXPECT_TRUE(stream.ScanInteger(value));
  EXPECT_EQ(value, 3);
}

TEST(BufferInput, IsOpenUntilClosedAndThenEmpty) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("text", AsciiBufferInput));
  EXPECT_TRUE(stream.IsOpened());
  EXPECT_EQ(stream.FileName(), "");
  EXPECT_EQ(stream.Buffer(), "text");
  EXPECT_FALSE(stream.WriteString("x"));
  EXPECT_TRUE(stream.CloseFile());
  EXPECT_FALSE(stream.IsOpened());
  EXPECT_EQ(stream.Buffer(), "");
  EXPECT_FALSE(stream.CloseFile());
}

TEST(BufferOutput, WritesLinesWithCrLf) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("ignored", AsciiBufferOutput));
  EXPECT_TRUE(stream.WriteString("A"));
  EXPECT_TRUE(stream.WriteString("B"));
  EXPECT_EQ(stream.Buffer(), "A\r\nB\r\n");
  EXPECT_TRUE(stream.EndOfFile());
}

TEST(BufferOutput, KeepsTheBytesThatItIsGiven) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("", AsciiBufferOutput));
  EXPECT_TRUE(stream.WriteString(std::string_view("a\0b\xC3\xA9", 5)));
  EXPECT_EQ(stream.Buffer(), std::string("a\0b\xC3\xA9\r\n", 7));
}

TEST(BufferOutput, StaysOpenWhenClosedBeforeAnythingWasWritten) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("", AsciiBufferOutput));
  EXPECT_FALSE(stream.CloseFile());
  EXPECT_TRUE(stream.IsOpened());
  EXPECT_TRUE(stream.WriteString("late"));
  EXPECT_TRUE(stream.CloseFile());
  EXPECT_FALSE(stream.IsOpened());
}

TEST(BufferOutput, DoesNotRead) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("", AsciiBufferOutput));
  stream.WriteString("1");
  std::string line = "kept";
  float single = 2;
  EXPECT_FALSE(stream.ScanString(line));
  EXPECT_FALSE(stream.ScanSingle(single));
  EXPECT_EQ(line, "kept");
}

TEST(OpenFile, ClosesWhatWasOpenBefore) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("first\r\nsecond", AsciiBufferInput));
  std::string line;
  stream.ScanString(line);
  ASSERT_TRUE(stream.OpenFile("other", AsciiBufferInput));
  EXPECT_TRUE(stream.ScanString(line));
  EXPECT_EQ(line, "other");
}

TEST(OpenFile, ReadsAgainFromItsOwnBuffer) {
  clsIOStream stream;
  ASSERT_TRUE(stream.OpenFile("", AsciiBufferOutput));
  stream.WriteString("A");
  ASSERT_TRUE(stream.OpenFile(stream.Buffer(), AsciiBufferInput));
  EXPECT_EQ(Lines(stream), (Strings{"A"}));
}

}  // namespace
}  // namespace orvik
