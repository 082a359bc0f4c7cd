#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/ctrlHintBar.h"
#include "platform/recording/RecordingSurface.h"

namespace orvik {
namespace {

// A theme of high contrast sets the system's colours, and only pairs of them can be read together.
TEST(HintBar, TheStripIsPaintedInTheSystemsColours) {
  RecordingSurface surface;
  PaintHintStrip(surface, {600, 40});
  ASSERT_FALSE(surface.Calls().empty());
  for (const std::string& call : surface.Calls()) {
    EXPECT_THAT(call, testing::HasSubstr("colour 0x800000"));
  }
  EXPECT_EQ(surface.Calls().front(), "fill 0,0 to 600,40 colour 0x80000018");
}

// A square as high as the strip, 40 pixels: the disc is round its middle, with a quarter as radius.
TEST(HintBar, TheSymbolLiesAtTheLeft) {
  RecordingSurface surface;
  PaintHintStrip(surface, {600, 40});
  const std::string& disc = surface.Calls().at(2);
  EXPECT_THAT(disc, testing::StartsWith("fill polygon 30,20 "));
  EXPECT_THAT(disc, testing::HasSubstr(" 20,30 "));
  EXPECT_THAT(disc, testing::HasSubstr(" 10,20 "));
}

}  // namespace
}  // namespace orvik
