#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "platform/cairo/CairoImageSurface.h"

namespace orvik {
namespace {

constexpr Pen kFlip{0xFFFF00, 1, DrawMode::ExclusiveOr};

std::uint32_t PixelAt(const CairoImageSurface& surface, int x, int y) {
  const Picture picture = surface.Pixels();
  return picture.pixels[static_cast<std::size_t>(y * picture.size.width + x)];
}

// Smoothed lines, areas, text: many colours to flip.
void DrawSomething(CairoImageSurface& surface) {
  surface.FillArea({0, 0, 200, 120}, 0xFFFFFF);
  surface.FillArea({20, 10, 90, 60}, 0x3080D0);
  const std::array<Point, 4> curve{{{5, 5}, {60, 40}, {120, 55}, {190, 110}}};
  surface.Polyline(curve, {0x0060D8, 3});
  Font font;
  font.pixelHeight = 30;
  surface.WriteText({30, 60}, "E=95%", font, kBlack);
}

TEST(CairoImageSurface, FlippingTwiceRestoresEveryPixel) {
  CairoImageSurface surface({200, 120});
  DrawSomething(surface);
  const Picture before = surface.Pixels();
  std::mt19937 random(7);
  const auto upTo = [&](int most) { return std::uniform_int_distribution(-20, most)(random); };
  for (int i = 0; i < 200; ++i) {
    std::vector<Point> points;
    for (int j = 0; j < 6; ++j) points.push_back({upTo(220), upTo(140)});
    const Pen pen{static_cast<Colour>(random() & 0xFFFFFF), 1 + i % 4, DrawMode::ExclusiveOr};
    surface.Polyline(points, pen);
    EXPECT_NE(surface.Pixels().pixels, before.pixels) << i;
    surface.Polyline(points, pen);
    ASSERT_EQ(surface.Pixels().pixels, before.pixels) << i;
  }
}

TEST(CairoImageSurface, FlipsTheColoursBits) {
  CairoImageSurface surface({10, 10});
  surface.FillArea({0, 0, 10, 10}, 0x563412);  // red 0x12, green 0x34, blue 0x56
  surface.Line({2, 3}, {5, 3}, kFlip);         // green and blue
  EXPECT_EQ(PixelAt(surface, 1, 3), 0x123456U);
  EXPECT_EQ(PixelAt(surface, 2, 3), 0x12CBA9U);
  EXPECT_EQ(PixelAt(surface, 4, 3), 0x12CBA9U);
  EXPECT_EQ(PixelAt(surface, 5, 3), 0x123456U);
}

TEST(CairoImageSurface, FlipsOnlyWithinItsClips) {
  CairoImageSurface surface({10, 10});
  {
    const ClipScope outer(surface, {2, 0, 6, 10});
    const ClipScope inner(surface, {0, 0, 4, 4});
    surface.Line({0, 1}, {10, 1}, kFlip);
    surface.Line({0, 5}, {10, 5}, kFlip);
    surface.FillArea({0, 2, 10, 3}, 0xFFFFFF);
  }
  surface.Line({0, 9}, {10, 9}, kFlip);
  for (const int row : {1, 2}) {
    EXPECT_EQ(PixelAt(surface, 1, row), 0U);
    EXPECT_NE(PixelAt(surface, 2, row), 0U);
    EXPECT_NE(PixelAt(surface, 3, row), 0U);
    EXPECT_EQ(PixelAt(surface, 4, row), 0U);
  }
  EXPECT_EQ(PixelAt(surface, 3, 5), 0U);
  EXPECT_NE(PixelAt(surface, 9, 9), 0U);
}

TEST(CairoImageSurface, LevelAndUprightLinesFillWholePixels) {
  CairoImageSurface surface({10, 10});
  surface.Line({1, 4}, {4, 4}, {0xFFFFFF});
  surface.Line({8, 7}, {8, 4}, {0xFFFFFF});
  const Picture picture = surface.Pixels();
  EXPECT_EQ(std::ranges::count(picture.pixels, 0xFFFFFFU), 6);
  EXPECT_EQ(std::ranges::count(picture.pixels, 0U), 94) << "nothing is smoothed";
  EXPECT_EQ(PixelAt(surface, 4, 4), 0U);
  EXPECT_EQ(PixelAt(surface, 8, 7), 0xFFFFFFU);
}

TEST(CairoImageSurface, ColoursAreThoseOfAPlainDesktop) {
  CairoImageSurface surface({1, 1});
  const std::array<std::pair<Colour, std::uint32_t>, 5> colours{{{0x0000FF, 0xFF0000},
                                                                 {kButtonFace, 0xF0F0F0},
                                                                 {k3DDarkShadow, 0x696969},
                                                                 {kButtonText, 0},
                                                                 {kWindowBackground, 0xFFFFFF}}};
  for (const auto& [colour, expected] : colours) {
    surface.FillArea({0, 0, 1, 1}, colour);
    EXPECT_EQ(PixelAt(surface, 0, 0), expected) << std::hex << colour;
  }
}

TEST(CairoImageSurface, CopiesAsMuchOfAPictureAsFits) {
  CairoImageSurface surface({4, 4});
  surface.CopyPicture({{2, 2}, {0x010203, 0x040506, 0x070809, 0x0A0B0C}}, {1, 1, 3, 2});
  EXPECT_EQ(PixelAt(surface, 1, 1), 0x010203U);
  EXPECT_EQ(PixelAt(surface, 2, 1), 0x040506U);
  EXPECT_EQ(PixelAt(surface, 1, 2), 0U) << "below the area";
  surface.CopyPicture({{0, 0}, {}}, {0, 0, 4, 4});
  EXPECT_EQ(PixelAt(surface, 1, 1), 0x010203U);
}

TEST(CairoImageSurface, APictureThatCannotExistIsRefused) {
  EXPECT_THROW(CairoImageSurface({-1, 10}), std::runtime_error);
  EXPECT_THROW(CairoImageSurface({1 << 20, 1 << 20}), std::runtime_error);
  CairoImageSurface surface({4, 4});
  EXPECT_THROW(surface.CopyPicture({{2, 2}, {1, 2, 3}}, {0, 0, 4, 4}), std::invalid_argument);
  EXPECT_THROW(surface.CopyPicture({{2, 2}, {1, 2, 3, 4, 5}}, {0, 0, 4, 4}), std::invalid_argument);
  EXPECT_THROW(surface.CopyPicture({{-1, -1}, {1}}, {0, 0, 4, 4}), std::invalid_argument);
}

TEST(CairoImageSurface, APictureFileThatCannotBeMadeIsNotAnEmptyOne) {
  EXPECT_NE(CairoImageSurface({1, 5}).Png(), "");
  EXPECT_THROW(CairoImageSurface({0, 5}).Png(), std::runtime_error);
}

}  // namespace
}  // namespace orvik
