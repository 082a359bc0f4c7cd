#include <gtest/gtest.h>

#include <stdexcept>

#include "controls/PictureScaling.h"
#include "support/FilledPicture.h"

namespace orvik {
namespace {

using test::FilledPicture;

Area Whole(Size size) {
  return {0, 0, size.width, size.height};
}

// Other colours at every pixel.
Picture Patterned(Size size) {
  Picture picture{size, {}};
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      picture.pixels.push_back(
          static_cast<std::uint32_t>(x * 7 % 256 << 16 | y * 11 % 256 << 8 | (x * y) % 256));
    }
  }
  return picture;
}

TEST(PictureScaling, ItsOwnSizeCopiesThePicture) {
  const Picture picture = Patterned({31, 17});
  EXPECT_EQ(ScalePicture(picture, {31, 17}, {0, 0, 31, 17}).pixels, picture.pixels);
}

TEST(PictureScaling, OneColourStaysThatColour) {
  for (const std::uint32_t colour : {0x000000U, 0xFFFFFFU, 0x0180FEU}) {
    for (const Size size : {Size{3, 2}, Size{40, 13}, Size{7, 150}}) {
      const Picture scaled = ScalePicture(FilledPicture({40, 30}, colour), size, Whole(size));
      EXPECT_EQ(scaled.size, size);
      EXPECT_EQ(scaled.pixels, FilledPicture(size, colour).pixels);
    }
  }
}

// Each pixel of half the size has its middle between two pixels and reaches two pixels to each
// side: weights 1, 3, 3, 1 of 8; at the edge, where the first is missing, 3, 3, 1 of 7.
TEST(PictureScaling, HalfTheSizeIsTheMeanOfWhatEachPixelCoversAndALittleAround) {
  const Picture row{{6, 1}, {0, 80, 0, 160, 0, 240}};
  const Picture scaled = ScalePicture(row, {3, 1}, Whole({3, 1}));
  ASSERT_EQ(scaled.size, (Size{3, 1}));
  EXPECT_EQ(scaled.pixels[0], 34U);   // (3 x 80) / 7 = 34.3
  EXPECT_EQ(scaled.pixels[1], 70U);   // (80 + 3 x 160) / 8
  EXPECT_EQ(scaled.pixels[2], 126U);  // (160 + 3 x 240) / 7 = 125.7
}

// Twice the size: each new pixel lies a quarter of a pixel from the middle of an old one.
TEST(PictureScaling, TwiceTheSizeGoesEvenlyFromPixelToPixel) {
  const Picture row{{2, 1}, {0, 200}};
  const Picture scaled = ScalePicture(row, {4, 1}, Whole({4, 1}));
  EXPECT_EQ(scaled.pixels, (std::vector<std::uint32_t>{0, 50, 150, 200}));
}

TEST(PictureScaling, ChannelsDoNotMix) {
  const Picture column{{1, 2}, {0xC80000, 0x0000C8}};
  const Picture scaled = ScalePicture(column, {1, 4}, Whole({1, 4}));
  EXPECT_EQ(scaled.pixels, (std::vector<std::uint32_t>{0xC80000, 0x960032, 0x320096, 0x0000C8}));
}

// A dark line of one pixel, however it falls on the pixels of the smaller picture, keeps its share
// of darkness.
TEST(PictureScaling, AThinLineDoesNotDisappear) {
  constexpr int kHeight = 300;
  for (int at = 20; at < 30; ++at) {
    Picture picture = FilledPicture({1, kHeight}, 255);
    picture.pixels[static_cast<std::size_t>(at)] = 0;
    const Picture scaled = ScalePicture(picture, {1, 100}, Whole({1, 100}));
    int darkness = 0;
    for (const std::uint32_t pixel : scaled.pixels) darkness += 255 - static_cast<int>(pixel);
    EXPECT_NEAR(darkness, 255.0 / 3, 2) << at;
  }
}

TEST(PictureScaling, ACutIsThatPartOfTheWhole) {
  const Picture picture = Patterned({40, 30});
  for (const Size size : {Size{25, 20}, Size{40, 30}, Size{130, 77}}) {
    const Picture whole = ScalePicture(picture, size, Whole(size));
    const Area cut{3, 5, 17, 19};
    const Picture part = ScalePicture(picture, size, cut);
    ASSERT_EQ(part.size, (Size{14, 14}));
    for (int y = cut.top; y < cut.bottom; ++y) {
      for (int x = cut.left; x < cut.right; ++x) {
        EXPECT_EQ(part.pixels[static_cast<std::size_t>((y - 5) * 14 + x - 3)],
                  whole.pixels[static_cast<std::size_t>(y * size.width + x)]);
      }
    }
  }
}

TEST(PictureScaling, NothingIsCutOutOfNothing) {
  EXPECT_TRUE(ScalePicture({}, {10, 10}, {0, 0, 10, 10}).pixels.empty());
  EXPECT_TRUE(ScalePicture(FilledPicture({4, 4}, 1), {10, 10}, {5, 5, 5, 9}).pixels.empty());
  EXPECT_THROW(ScalePicture({{2, 2}, {1, 2, 3}}, {2, 2}, {0, 0, 2, 2}), std::invalid_argument);
}

}  // namespace
}  // namespace orvik
