#include <gtest/gtest.h>

#include "shell/PagePictures.h"

namespace orvik {
namespace {

TEST(PagePictures, BandsHaveThePixelsOfTheirSize) {
  for (const Size size : {Size{300, 40}, Size{1, 1}, Size{0, 0}, Size{5, 0}}) {
    for (const Picture& picture : {Image1(size), Image2(size)}) {
      EXPECT_EQ(picture.size, size);
      EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(size.width * size.height));
    }
  }
}

TEST(PagePictures, ThePageShadeEndsInThePagesColour) {
  const Picture shade = Image2({2, 4});
  EXPECT_EQ(shade.pixels.back(), 0xF0F0F0U);
  EXPECT_LT(shade.pixels.front(), shade.pixels.back());
}

}  // namespace
}  // namespace orvik
