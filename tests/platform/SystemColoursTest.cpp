#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/cairo/SystemColours.h"

namespace orvik {
namespace {

TEST(SystemColours, AnOrdinaryColourHasTheOrderOfItsBytesReversed) {
  EXPECT_EQ(RedGreenBlue(kRed), 0xFF0000U);
  EXPECT_EQ(RedGreenBlue(0x00123456), 0x563412U);
}

TEST(SystemColours, EachOneThatIsNamedIsKnown) {
  for (const Colour colour : {kWindowBackground, kWindowText, kButtonFace, kButtonShadow,
                              kButtonText, k3DHighlight, k3DDarkShadow, k3DLight, kHighlight,
                              kHighlightText, kGreyText, kInfoText, kInfoBackground}) {
    EXPECT_NO_THROW(RedGreenBlue(colour)) << std::hex << colour;
  }
  EXPECT_EQ(RedGreenBlue(kWindowText), RedGreenBlue(kBlack));
  EXPECT_EQ(RedGreenBlue(kButtonText), RedGreenBlue(kBlack));
}

TEST(SystemColours, AnUnknownOneIsRefused) {
  EXPECT_THROW(RedGreenBlue(0x8000001E), std::invalid_argument);  // COLOR_MENUBAR
}

}  // namespace
}  // namespace orvik
