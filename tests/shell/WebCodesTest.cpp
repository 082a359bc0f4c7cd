#include <gtest/gtest.h>

#include "shell/WebCodes.h"

namespace orvik {
namespace {

TEST(WebCodes, EachSpaceBecomesFourCharacters) {
  EXPECT_EQ(ReplaceSpacesWithWebCodes("C:\\Help pages\\Topic 001.htm"),
            "C:\\Help%20%pages\\Topic%20%001.htm");
  EXPECT_EQ(ReplaceSpacesWithWebCodes("  a "), "%20%%20%a%20%");
}

TEST(WebCodes, ATextWithoutSpacesStays) {
  EXPECT_EQ(ReplaceSpacesWithWebCodes("Help\\Topic001.htm"), "Help\\Topic001.htm");
  EXPECT_EQ(ReplaceSpacesWithWebCodes("a%20%b\tc"), "a%20%b\tc") << "a tab is no space";
  EXPECT_EQ(ReplaceSpacesWithWebCodes(""), "");
}

}  // namespace
}  // namespace orvik
