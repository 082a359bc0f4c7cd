#include <gtest/gtest.h>

#include "entry/com/Bstr.h"

namespace orvik::com {
namespace {

using namespace std::string_literals;

TEST(Bstr, TextGoesThereAndBack) {
  for (const std::string& text : {""s, "plain"s, "ä½Δ雨\U0001F327"s, "a\0b"s, "\0"s, "\r\n"s}) {
    EXPECT_EQ(Bstr(std::string_view(text)).Utf8(), text);
  }
}

TEST(Bstr, LengthIsInUtf16Units) {
  EXPECT_EQ(Bstr("\U0001F327").Wide().size(), 2U);
  EXPECT_EQ(Bstr("a\0b"s).Wide().size(), 3U);
}

TEST(Bstr, NullIsTheEmptyText) {
  EXPECT_EQ(Utf8FromBstr(nullptr), "");
  EXPECT_EQ(Bstr().Utf8(), "");
  EXPECT_EQ(Bstr().Wide(), L"");
}

TEST(Bstr, ALoneSurrogateBecomesTheReplacementCharacter) {
  EXPECT_EQ(Utf8FromWide(std::wstring(1, static_cast<wchar_t>(0xD83C))), "\uFFFD");
}

}  // namespace
}  // namespace orvik::com
