#include <gtest/gtest.h>

#include "printing/clsFont.h"

namespace orvik {
namespace {

TEST(clsFont, WritesItsTextWithTheKey) {
  EXPECT_EQ((clsFont{"Arial", 11, true}).WriteFont(), "Font=Arial,11,1,0,0,0");
  EXPECT_EQ((clsFont{"Courier New", 8.25F, false, true, true, true}).WriteFont(),
            "Font=Courier New,8.25,0,1,1,1");
}

TEST(clsFont, ReadsWhatItWrites) {
  const clsFont fonts[] = {{"Arial", 11, true},
                           {"Arial", 8},
                           {"A, B and C", 0.5F, false, true},
                           {"Ñandú", 72, true, true, true, true}};
  for (const clsFont& font : fonts) {
    clsFont read;
    EXPECT_TRUE(read.ReadFont(font.WriteFont())) << font.WriteFont();
    EXPECT_EQ(read, font) << font.WriteFont();
  }
}

TEST(clsFont, TakesBlanksAndAnyCaseOfTheKey) {
  clsFont font;
  EXPECT_TRUE(font.ReadFont("  fOnT= Arial , 10 , 1 , 0 , 0 , 1  "));
  EXPECT_EQ(font, (clsFont{"Arial", 10, true, false, false, true}));
}

TEST(clsFont, StaysAsItWasWhereTheTextIsNoFont) {
  const char* const bad[] = {"",
                             "Font=",
                             "Arial,11,1,0,0,0",
                             "Font=Arial",
                             "Font=Arial,11,1,0,0",
                             "Font=,11,1,0,0,0",
                             "Font=Arial,x,1,0,0,0",
                             "Font=Arial,0,1,0,0,0",
                             "Font=Arial,-8,1,0,0,0",
                             "Font=Arial,1E60,1,0,0,0",
                             "Font=Arial,11,2,0,0,0",
                             "Font=Arial,11,1,0,0,True"};
  const clsFont before{"Arial", 9, false, true};
  for (const char* text : bad) {
    clsFont font = before;
    EXPECT_FALSE(font.ReadFont(text)) << text;
    EXPECT_EQ(font, before) << text;
  }
}

}  // namespace
}  // namespace orvik
