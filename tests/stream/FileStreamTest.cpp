// The text stream over files.
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "stream/clsIOStream.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

using enum enumIOStreamMode;
using test::ReadBytes;
using test::TempFolder;

class FileInput : public testing::Test {
 protected:
  // The stream on a file of these bytes.
  clsIOStream& Open(std::string_view bytes) {
    EXPECT_TRUE(stream_.OpenFile(folder_.Write("in.txt", bytes), AsciiFileInput));
    return stream_;
  }
  std::string NextLine() {
    std::string line = "<unread>";
    EXPECT_TRUE(stream_.ScanString(line));
    return line;
  }
  float NextSingle() {
    float value = -999;
    EXPECT_TRUE(stream_.ScanSingle(value));
    return value;
  }
  int NextInteger() {
    std::int16_t value = -999;
    EXPECT_TRUE(stream_.ScanInteger(value));
    return value;
  }

  TempFolder folder_;
  clsIOStream stream_;
};

TEST_F(FileInput, ReadsWholeLines) {
  Open("a, \"b\" c\r\n\r\nlast");
  EXPECT_EQ(NextLine(), "a, \"b\" c");
  EXPECT_EQ(NextLine(), "");
  EXPECT_FALSE(stream_.EndOfFile());
  EXPECT_EQ(NextLine(), "last");
  EXPECT_TRUE(stream_.EndOfFile());
}

TEST_F(FileInput, ReturnsTrueBeyondTheEndAndLeavesTheTarget) {
  Open("only");
  NextLine();
  EXPECT_EQ(NextLine(), "<unread>");
  EXPECT_EQ(NextSingle(), -999);
  EXPECT_EQ(NextInteger(), -999);
}

TEST_F(FileInput, ALoneLfIsPartOfALine) {
  Open("x\ny\r\nz");
  EXPECT_EQ(NextLine(), "x\ny");
  EXPECT_EQ(NextLine(), "z");
}

TEST_F(FileInput, TakesNumbersFieldByField) {
  Open("1.5,2 3\r\n4");
  EXPECT_EQ(NextSingle(), 1.5F);
  EXPECT_EQ(NextInteger(), 2);
  EXPECT_EQ(NextSingle(), 3.0F);
  EXPECT_EQ(NextInteger(), 4);
  EXPECT_TRUE(stream_.EndOfFile());
}

TEST_F(FileInput, ALineCanFollowAField) {
  for (const char* text :
       {"80\r\n0.6 inch\r\n", "80 \r\n0.6 inch\r\n", " 80\r0.6 inch", "80,0.6 inch"}) {
    clsIOStream stream;
    ASSERT_TRUE(stream.OpenFile(folder_.Write("f.txt", text), AsciiFileInput));
    float value = 0;
    std::string line;
    stream.ScanSingle(value);
    stream.ScanString(line);
    EXPECT_EQ(value, 80.0F) << text;
    EXPECT_EQ(line, "0.6 inch") << text;
  }
}

TEST_F(FileInput, AFieldThatIsNotANumberReadsAsItsPrefixOrZero) {
  Open("abc 60x ,, 5");
  EXPECT_EQ(NextSingle(), 0.0F);
  EXPECT_EQ(NextSingle(), 60.0F);
  EXPECT_EQ(NextSingle(), 0.0F);  // the empty field between two commas
  EXPECT_EQ(NextSingle(), 5.0F);
}

TEST_F(FileInput, RoundsFractionsOfIntegersHalfToEven) {
  Open("2.5 3.5 -2.5 0.5");
  EXPECT_EQ(NextInteger(), 2);
  EXPECT_EQ(NextInteger(), 4);
  EXPECT_EQ(NextInteger(), -2);
  EXPECT_EQ(NextInteger(), 0);
}

TEST_F(FileInput, AnOverflowIsIgnoredAndTheFieldConsumed) {
  Open("40000 1e39 7");
  EXPECT_EQ(NextInteger(), -999);
  EXPECT_EQ(NextSingle(), -999);
  EXPECT_EQ(NextInteger(), 7);
}

TEST_F(FileInput, AFileThatDoesNotExistOpensAndIsAtItsEnd) {
  clsIOStream stream;
  EXPECT_TRUE(stream.OpenFile(folder_ / "nothing.txt", AsciiFileInput));
  EXPECT_TRUE(stream.IsOpened());
  EXPECT_TRUE(stream.EndOfFile());
  std::string line = "kept";
  EXPECT_TRUE(stream.ScanString(line));
  EXPECT_EQ(line, "kept");
  EXPECT_TRUE(stream.CloseFile());
  EXPECT_FALSE(stream.CloseFile());
}

TEST_F(FileInput, AFolderInPlaceOfAFileIsAtItsEnd) {
  clsIOStream stream;
  EXPECT_TRUE(stream.OpenFile(folder_.Path(), AsciiFileInput));
  EXPECT_TRUE(stream.EndOfFile());
}

TEST_F(FileInput, ReadsUtf8WithAndWithoutMarkAndWindows1252) {
  for (const char* bytes : {"\xEF\xBB\xBF"
                            "Caf\xC3\xA9\r\n",
                            "Caf\xC3\xA9\r\n", "Caf\xE9\r\n"}) {
    clsIOStream stream;
    ASSERT_TRUE(stream.OpenFile(folder_.Write("t.txt", bytes), AsciiFileInput));
    std::string line;
    stream.ScanString(line);
    EXPECT_EQ(line, "Caf\xC3\xA9");
  }
}

TEST_F(FileInput, NamesItsFileUntilClosed) {
  const std::string path = folder_.Write("in.txt", "x");
  ASSERT_TRUE(stream_.OpenFile(path, AsciiFileInput));
  EXPECT_EQ(stream_.FileName(), path);
  EXPECT_TRUE(stream_.IsOpened());
  EXPECT_FALSE(stream_.WriteString("no"));
  EXPECT_TRUE(stream_.CloseFile());
  EXPECT_EQ(stream_.FileName(), "");
}

class FileOutput : public testing::Test {
 protected:
  TempFolder folder_;
  clsIOStream stream_;
};

TEST_F(FileOutput, WritesLinesWithCrLfAndNoMark) {
  const std::string path = folder_ / "out.txt";
  ASSERT_TRUE(stream_.OpenFile(path, AsciiFileOutput));
  EXPECT_TRUE(stream_.WriteString("A"));
  EXPECT_TRUE(stream_.WriteString("Caf\xC3\xA9"));
  EXPECT_TRUE(stream_.EndOfFile());
  EXPECT_TRUE(stream_.CloseFile());
  EXPECT_EQ(ReadBytes(path), "A\r\nCaf\xC3\xA9\r\n");
}

TEST_F(FileOutput, EmptiesAnExistingFile) {
  const std::string path = folder_.Write("out.txt", "old text");
  ASSERT_TRUE(stream_.OpenFile(path, AsciiFileOutput));
  stream_.CloseFile();
  EXPECT_EQ(ReadBytes(path), "");
}

TEST_F(FileOutput, AFileThatCannotBeMadeIsIgnored) {
  EXPECT_TRUE(stream_.OpenFile(folder_ / "no folder/out.txt", AsciiFileOutput));
  EXPECT_TRUE(stream_.WriteString("lost"));
  EXPECT_TRUE(stream_.CloseFile());
  const std::string good = folder_ / "good.txt";
  EXPECT_TRUE(stream_.OpenFile(good, AsciiFileOutput));  // the stream is as good as new
  stream_.WriteString("kept");
  stream_.CloseFile();
  EXPECT_EQ(ReadBytes(good), "kept\r\n");
}

TEST_F(FileOutput, ANameWithANulInsideOpensNoOtherFile) {
  const std::string path = folder_.Write("a", "kept");
  const std::string cut = path + std::string("\0b", 2);
  EXPECT_TRUE(stream_.OpenFile(cut, AsciiFileOutput));
  EXPECT_TRUE(stream_.CloseFile());
  EXPECT_EQ(ReadBytes(path), "kept");
  EXPECT_TRUE(stream_.OpenFile(cut, AsciiFileInput));
  EXPECT_TRUE(stream_.EndOfFile());
}

TEST_F(FileOutput, IsClosedWhenTheObjectGoes) {
  const std::string path = folder_ / "out.txt";
  {
    clsIOStream stream;
    stream.OpenFile(path, AsciiFileOutput);
    stream.WriteString("flushed");
  }
  EXPECT_EQ(ReadBytes(path), "flushed\r\n");
  EXPECT_TRUE(
      std::filesystem::remove(PathFromUtf8(path)));  // Windows refuses this for an open file
}

TEST_F(FileOutput, TakesANameOutsideAscii) {
  const std::string path = folder_ / "\xC3\xB1\xC2\xB0\xE4\xB8\xAD.txt";
  ASSERT_TRUE(stream_.OpenFile(path, AsciiFileOutput));
  stream_.WriteString("x");
  ASSERT_TRUE(stream_.OpenFile(path, AsciiFileInput));  // closes the output first
  std::string line;
  EXPECT_TRUE(stream_.ScanString(line));
  EXPECT_EQ(line, "x");
  EXPECT_EQ(stream_.FileName(), path);
}

TEST_F(FileOutput, DoesNotRead) {
  ASSERT_TRUE(stream_.OpenFile(folder_ / "out.txt", AsciiFileOutput));
  std::string line = "kept";
  std::int16_t integer = 3;
  EXPECT_FALSE(stream_.ScanString(line));
  EXPECT_FALSE(stream_.ScanInteger(integer));
  EXPECT_EQ(line, "kept");
}

}  // namespace
}  // namespace orvik
