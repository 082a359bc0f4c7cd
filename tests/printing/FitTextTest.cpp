// Widths: one for each byte, unless said otherwise.
#include <gmock/gmock.h>

#include <numeric>

#include "printing/FitText.h"

namespace orvik {
namespace {

using testing::ElementsAre;

float Bytes(std::string_view text) {
  return static_cast<float>(text.size());
}

TEST(WrapText, BreaksAtBlanks) {
  EXPECT_THAT(WrapText("one two three", 7, Bytes), ElementsAre("one two", "three"));
  EXPECT_THAT(WrapText("one two three", 6, Bytes), ElementsAre("one", "two", "three"));
  EXPECT_THAT(WrapText("one two three", 13, Bytes), ElementsAre("one two three"));
}

TEST(WrapText, KeepsBlanksWithinALineAndDropsThoseAtTheBreak) {
  EXPECT_THAT(WrapText("  a  b     c  ", 4, Bytes), ElementsAre("a  b", "c"));
}

TEST(WrapText, OfNothingIsOneEmptyLine) {
  EXPECT_THAT(WrapText("", 10, Bytes), ElementsAre(""));
  EXPECT_THAT(WrapText("   ", 10, Bytes), ElementsAre(""));
}

TEST(WrapText, BreaksAWordThatIsAloneTooWide) {
  EXPECT_THAT(WrapText("abcdefgh", 3, Bytes), ElementsAre("abc", "def", "gh"));
  EXPECT_THAT(WrapText("ab cdefgh", 3, Bytes), ElementsAre("ab", "cde", "fgh"));
}

TEST(WrapText, ACharacterThatIsTooWideGetsALineOfItsOwn) {
  EXPECT_THAT(WrapText("abc", 0.5F, Bytes), ElementsAre("a", "b", "c"));
  EXPECT_THAT(WrapText("a\u00F1b", 0, Bytes), ElementsAre("a", "\u00F1", "b"));
}

TEST(WrapText, SplitsNoCharacterAndNoAccentFromItsLetter) {
  EXPECT_THAT(WrapText("\u00F1\u00F1\u00F1", 3, Bytes), ElementsAre("\u00F1", "\u00F1", "\u00F1"));
  EXPECT_THAT(WrapText("n\u0303o", 2, Bytes), ElementsAre("n\u0303", "o"));
  EXPECT_THAT(WrapText("\U0001F477\u200D\U0001F4A7x", 4, Bytes),
              ElementsAre("\U0001F477\u200D\U0001F4A7", "x"));
}

TEST(WrapText, BytesThatAreNoTextEndTheLoopToo) {
  const auto lines = WrapText("\xFF\xC3(\x80\x80", 1, Bytes);
  EXPECT_EQ(std::accumulate(lines.begin(), lines.end(), std::string()), "\xFF\xC3(\x80\x80");
}

TEST(WrapText, LosesNothingOfALongText) {
  std::string text;
  for (int i = 0; i < 3000; ++i) text += (i > 0 ? " w" : "w") + std::to_string(i);
  const auto lines = WrapText(text, 61, Bytes);
  std::string joined;
  for (const std::string& line : lines) {
    EXPECT_LE(line.size(), 61U);
    joined += (joined.empty() ? "" : " ") + line;
  }
  EXPECT_EQ(joined, text);
}

TEST(WrapText, FillsEachLine) {
  const auto lines = WrapText(std::string(10000, 'x'), 64, Bytes);
  EXPECT_EQ(lines.size(), 157U);  // 156 x 64 = 9984
  EXPECT_EQ(lines.front().size(), 64U);
  EXPECT_EQ(lines.back().size(), 16U);
}

TEST(WrapText, MeasuresALongTextFewTimes) {
  int measured = 0;
  const TextWidth width = [&](std::string_view text) {
    ++measured;
    return Bytes(text);
  };
  std::string text;
  while (text.size() < 10000) text += "word ";
  const auto lines = WrapText(text, 80, width);
  EXPECT_LT(measured, static_cast<int>(lines.size()) * 12);
}

TEST(FitText, LeavesWhatFits) {
  EXPECT_EQ(FitText("Pond", 4, Bytes), "Pond");
  EXPECT_EQ(FitText("", 0, Bytes), "");
}

// A page's footer has the project's name: it is fitted once a page.
TEST(FitText, NeverMeasuresALongTextAsAWhole) {
  std::size_t longest = 0;
  const TextWidth width = [&](std::string_view text) {
    longest = std::max(longest, text.size());
    return Bytes(text);
  };
  EXPECT_EQ(FitText(std::string(1'000'000, 'x'), 13, width), "xxxxxxxxxx...");
  EXPECT_LE(longest, 1003U);
}

TEST(FitText, EndsInDotsWhereItIsShortened) {
  EXPECT_EQ(FitText("Bayhead Commons", 10, Bytes), "Bayhead...");
  EXPECT_EQ(FitText("Bayhead Commons", 11, Bytes), "Bayhead...");
  EXPECT_EQ(FitText("Bayhead Commons", 12, Bytes), "Bayhead C...");
  EXPECT_EQ(FitText("Pond", 1, Bytes), "...");
}

}  // namespace
}  // namespace orvik
