// Text in whole pixels, alike everywhere. Liberation Sans has the measures of Arial: of 2048 units
// to the height, a digit is 1139 wide, "W" 1933; ascent 1854 and descent 434.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

#include "platform/cairo/CairoImageSurface.h"
#include "platform/cairo/CairoText.h"

namespace orvik {
namespace {

Font Arial(int height) {
  Font font;
  font.pixelHeight = height;
  return font;
}

TEST(CairoText, HasTheMeasuresOfArial) {
  const CairoText text;
  EXPECT_EQ(text.Measure("0", Arial(2048)), (Size{1139, 2288}))
      << "is the package fonts-liberation installed?";
  EXPECT_EQ(text.Measure("W", Arial(2048)).width, 1933);
  EXPECT_EQ(text.Measure("0000", Arial(11)), (Size{25, 13}));  // 24.47 and 12.29
  EXPECT_NEAR(text.Ascent("0", Arial(2048)), 1854, 1);
}

TEST(CairoText, AStyleChangesTheMeasuresOrTheLook) {
  const CairoText text;
  Font bold = Arial(2048);
  bold.bold = true;
  EXPECT_GT(text.Measure("Reuse", bold).width, text.Measure("Reuse", Arial(2048)).width);
}

TEST(CairoText, AnEmptyTextOrAFontWithoutHeightHasNoWidth) {
  const CairoText text;
  EXPECT_EQ(text.Measure("", Arial(10)).width, 0);
  for (const int height : {0, -5, 100000}) {
    EXPECT_EQ(text.Measure("abc", Arial(height)), Size()) << height;
  }
}

TEST(CairoText, IsTheSameInEveryLanguage) {
  const Size before = CairoText().Measure("0.25 inches, Peña", Arial(40));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  setenv("LANG", "ja_JP.UTF-8", 1);
  setenv("GDK_DPI_SCALE", "3", 1);
  EXPECT_EQ(CairoText().Measure("0.25 inches, Peña", Arial(40)), before);
  std::setlocale(LC_ALL, "C");
}

// The area that is not paper, right and bottom outside.
Area InkOf(const CairoImageSurface& surface) {
  const Picture picture = surface.Pixels();
  Area ink{picture.size.width, picture.size.height, 0, 0};
  for (int y = 0; y < picture.size.height; ++y) {
    for (int x = 0; x < picture.size.width; ++x) {
      if (picture.pixels[static_cast<std::size_t>(y * picture.size.width + x)] == 0) continue;
      ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
             std::max(ink.bottom, y + 1)};
    }
  }
  return ink;
}

TEST(CairoText, IsInItsCellWhicheverWayItReads) {
  const Size size = CairoText().Measure("Reuse", Arial(20));
  CairoImageSurface level({200, 200});
  level.WriteText({50, 60}, "Reuse", Arial(20), 0xFFFFFF);
  const Area across = InkOf(level);
  EXPECT_GE(across.left, 50);
  EXPECT_LE(across.right, 50 + size.width);
  EXPECT_GE(across.top, 60);
  EXPECT_LE(across.bottom, 60 + size.height);
  EXPECT_GT(across.right - across.left, size.width / 2);

  Font upwards = Arial(20);
  upwards.escapement = 900;
  CairoImageSurface upright({200, 200});
  upright.WriteText({50, 150}, "Reuse", upwards, 0xFFFFFF);
  const Area up = InkOf(upright);
  EXPECT_GE(up.left, 50);
  EXPECT_LE(up.right, 50 + size.height);
  EXPECT_LE(up.bottom, 150);
  EXPECT_GE(up.top, 150 - size.width);
  EXPECT_EQ(up.bottom - up.top, across.right - across.left);
}

}  // namespace
}  // namespace orvik
