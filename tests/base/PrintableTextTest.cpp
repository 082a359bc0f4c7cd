#include <gtest/gtest.h>

#include "base/PrintableText.h"

namespace orvik {
namespace {

TEST(PrintableText, WhatATerminalObeysIsABlank) {
  EXPECT_EQ(PrintableText(std::string_view("a\x1B[31m\tb\0c\x7F\r\nd", 14)), "a [31m b c   d");
  EXPECT_EQ(PrintableText("C1 \xC2\x9B"
                          "2J"),
            "C1  2J");  // U+009B is ESC [ in one character
  EXPECT_EQ(PrintableText("1\xE2\x80\xAE"
                          "23"),
            "1 23");  // U+202E would show 132
}

TEST(PrintableText, OtherCharactersStay) {
  EXPECT_EQ(PrintableText("Pe\xC3\xB1"
                          "a \xE2\x82\xAC \xF0\x9F\x98\x80"),
            "Pe\xC3\xB1"
            "a \xE2\x82\xAC \xF0\x9F\x98\x80");
  EXPECT_EQ(PrintableText(""), "");
}

TEST(PrintableText, BytesThatAreNotUtf8BecomeTheReplacementCharacter) {
  EXPECT_EQ(PrintableText("a\xE9z\x9B"), "a\xEF\xBF\xBDz\xEF\xBF\xBD");
}

TEST(PrintableText, ALongTextIsCutAtAWholeCharacter) {
  std::string text;
  for (int i = 0; i < 6; ++i) text += "\xC3\xA9";
  EXPECT_EQ(PrintableText(text, 6), text);
  EXPECT_EQ(PrintableText(text, 5), text.substr(0, 10) + "...");
  EXPECT_EQ(PrintableText(std::string(100'000'000, 'x')).size(), kMostShown + 3);
  EXPECT_EQ(Quotable(std::string(81, 'x')), std::string(80, 'x') + "...");
}

}  // namespace
}  // namespace orvik
