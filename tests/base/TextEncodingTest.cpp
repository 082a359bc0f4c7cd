#include <gtest/gtest.h>

#include "base/TextEncoding.h"

namespace orvik {
namespace {

TEST(IsUtf8, AcceptsWellFormedText) {
  for (const char* text : {"", "plain", "\xC3\xA9", "\xC2\xB0", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80",
                           "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF"}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
}

TEST(IsUtf8, RefusesOverlongSurrogateAndTruncatedForms) {
  for (const char* text :
       {"\xE9", "\x80", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE4\xB8", "\xC3\x28"}) {
    EXPECT_FALSE(IsUtf8(text)) << testing::PrintToString(std::string(text));
  }
}

TEST(DecodeFileText, SkipsTheByteOrderMark) {
  EXPECT_EQ(DecodeFileText("\xEF\xBB\xBFpond"), "pond");
}

TEST(DecodeFileText, ReadsOtherBytesAsWindows1252) {
  EXPECT_EQ(DecodeFileText("Caf\xE9 \xF1 25\xB0"), "Caf\xC3\xA9 \xC3\xB1 25\xC2\xB0");
  EXPECT_EQ(DecodeFileText("\x80 5"), "\xE2\x82\xAC 5");                  // euro sign
  EXPECT_EQ(DecodeFileText("\x93hi\x94"), "\xE2\x80\x9Chi\xE2\x80\x9D");  // curly quotes
  EXPECT_EQ(DecodeFileText("\x81"), "\xC2\x81");  // unassigned there: the control of that number
}

}  // namespace
}  // namespace orvik
