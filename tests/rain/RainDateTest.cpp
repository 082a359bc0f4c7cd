#include <gtest/gtest.h>

#include "rain/RainDate.h"

namespace orvik {
namespace {

TEST(ParseRainDate, ReadsIsoAndUsDates) {
  struct Case {
    const char* text;
    const char* iso;
  };
  for (const auto& [text, iso] : {Case{"1960-05-01", "1960-05-01"}, Case{"19600501", "1960-05-01"},
                                  Case{"5/1/1960", "1960-05-01"}, Case{"12/31/1999", "1999-12-31"},
                                  Case{"2/29/2000", "2000-02-29"}}) {
    const auto date = ParseRainDate(text);
    ASSERT_TRUE(date) << text;
    EXPECT_EQ(IsoDate(*date), iso) << text;
  }
}

TEST(ParseRainDate, RefusesWhatIsNotADate) {
  for (const char* text : {"", "1960", "1960-13-01", "1960-02-30", "1900-02-29", "1/2/60",
                           "31/12/1999", "1960/05/01", "1960-5-1", "5-1-1960", "May 1, 1960",
                           "1960-05-01T00:00", "0/1/1960", "//", "1960-0x-01"}) {
    EXPECT_FALSE(ParseRainDate(text)) << text;
  }
}

}  // namespace
}  // namespace orvik
