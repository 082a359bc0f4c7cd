// Bytes by hand after RFC 3629, section 3.
#include <gtest/gtest.h>

#include "base/Utf8.h"

namespace orvik {
namespace {

const struct {
  std::string_view text;
  std::uint32_t codePoint;
} kCharacters[] = {{"A", 0x41},
                   {"\x7F", 0x7F},
                   {"\xC2\x80", 0x80},
                   {"\xDF\xBF", 0x7FF},
                   {"\xE0\xA0\x80", 0x800},
                   {"\xE2\x82\xAC", 0x20AC},
                   {"\xEF\xBF\xBF", 0xFFFF},
                   {"\xF0\x90\x80\x80", 0x10000},
                   {"\xF4\x8F\xBF\xBF", 0x10FFFF}};

TEST(Utf8, ReadsTheCodePointOfEachLength) {
  for (const auto& row : kCharacters) {
    EXPECT_EQ(CodePointAt("x" + std::string(row.text) + "y", 1), row.codePoint) << row.codePoint;
  }
}

TEST(Utf8, TheFirstByteGivesTheLength) {
  for (const auto& row : kCharacters) {
    EXPECT_EQ(CharacterLength(row.text.front()), row.text.size()) << row.codePoint;
  }
}

TEST(Utf8, AByteThatBeginsNoCharacterCountsAlone) {
  EXPECT_EQ(CharacterLength('\x80'), 1U);
  EXPECT_EQ(CharacterLength('\xBF'), 1U);
}

TEST(Utf8, WritesWhatItReads) {
  for (const auto& row : kCharacters) {
    if (row.codePoint > 0xFFFF) continue;
    std::string text;
    AppendUtf8(text, static_cast<std::uint16_t>(row.codePoint));
    EXPECT_EQ(text, row.text);
  }
}

TEST(Utf8, CountsCharactersNotBytes) {
  EXPECT_EQ(CountCodePoints(""), 0U);
  EXPECT_EQ(CountCodePoints("a\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80z"), 5U);
}

TEST(Utf8, ATruncatedCharacterEndsWithTheText) {
  EXPECT_EQ(CodePointAt("\xE2\x82", 0), 0x82U);  // 0x2 and the six bits 0x02
}

}  // namespace
}  // namespace orvik
