#include <gmock/gmock.h>

#include <array>
#include <stdexcept>

#include "platform/cairo/PictureFile.h"

namespace orvik {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

Font ArialOf(int height) {
  Font font;
  font.pixelHeight = height;
  return font;
}

std::string Svg(const std::function<void(Surface&)>& draw) {
  return MakePictureFile(PictureKind::Svg, {100, 50}, "A <title>", draw);
}

TEST(PictureFile, TheExtensionDecidesTheKind) {
  EXPECT_EQ(PictureKindOf("a.png"), PictureKind::Png);
  EXPECT_EQ(PictureKindOf("folder/b.SVG"), PictureKind::Svg);
  EXPECT_EQ(PictureKindOf("a.png.Pdf"), PictureKind::Pdf);
  for (const char* path : {"", "png", ".png", "a.jpg", "a.png ", "a.pn", "pdf/a"}) {
    EXPECT_FALSE(PictureKindOf(path)) << path;
  }
}

TEST(PictureFile, BeginsAsItsKindDoes) {
  const auto draw = [](Surface& surface) { surface.FillArea({0, 0, 10, 10}, kRed); };
  EXPECT_THAT(MakePictureFile(PictureKind::Png, {20, 10}, "", draw), StartsWith("\x89PNG\r\n"));
  EXPECT_THAT(MakePictureFile(PictureKind::Svg, {20, 10}, "", draw), StartsWith("<?xml"));
  EXPECT_THAT(MakePictureFile(PictureKind::Pdf, {20, 10}, "", draw), StartsWith("%PDF-"));
}

TEST(PictureFile, OnlyPixelsCanBeFlipped) {
  for (const auto kind : {PictureKind::Png, PictureKind::Svg, PictureKind::Pdf}) {
    MakePictureFile(kind, {20, 10}, "", [&](Surface& surface) {
      EXPECT_EQ(surface.Supports(SurfaceFeature::ExclusiveOr), kind == PictureKind::Png);
    });
  }
}

TEST(PictureFile, APdfsPageIsOneInchFor96Pixels) {
  EXPECT_THAT(MakePictureFile(PictureKind::Pdf, {960, 640}, "", [](Surface&) {}),
              HasSubstr("/MediaBox [ 0 0 720 480 ]"));
}

TEST(PictureFile, ADrawingThatFailsMakesNoFile) {
  for (const auto kind : {PictureKind::Png, PictureKind::Svg, PictureKind::Pdf}) {
    EXPECT_THROW(
        MakePictureFile(kind, {20, 10}, "", [](Surface&) { throw std::runtime_error("no"); }),
        std::runtime_error);
  }
}

TEST(SvgSurface, HasSizeAndTitle) {
  const std::string svg = Svg([](Surface&) {});
  EXPECT_THAT(svg, HasSubstr("width=\"100\" height=\"50\" viewBox=\"0 0 100 50\""));
  EXPECT_THAT(svg, HasSubstr("<title>A &lt;title&gt;</title>"));
}

// "0" at 20 pixels is 11.1 wide, 12 whole pixels; the baseline lies 0.9053 of 20 below the top.
TEST(SvgSurface, WritesTextAsText) {
  const std::string svg = Svg([](Surface& surface) {
    surface.WriteText({10, 20}, "0", ArialOf(20), 0x0000FF);
    Font upwards = ArialOf(20);
    upwards.escapement = 900;
    upwards.bold = true;
    surface.WriteText({30, 40}, "a<b & \"c\"\x01", upwards, kBlack);
  });
  EXPECT_THAT(svg, HasSubstr("<text x=\"10\" y=\"38.1"));
  EXPECT_THAT(svg, HasSubstr("textLength=\"12\" font-family=\"'Arial', 'Liberation Sans'"));
  EXPECT_THAT(svg, HasSubstr("fill=\"#ff0000\" xml:space=\"preserve\">0</text>"));
  EXPECT_THAT(svg, HasSubstr("transform=\"rotate(-90 30 40)\""));
  EXPECT_THAT(svg, HasSubstr(">a&lt;b &amp; &quot;c&quot; </text>"));
  EXPECT_THAT(svg, HasSubstr("font-weight=\"bold\""));
}

TEST(SvgSurface, DrawsShapesAndClips) {
  const std::string svg = Svg([](Surface& surface) {
    const ClipScope clip(surface, {1, 2, 30, 40});
    surface.Line({5, 6}, {9, 6}, {kBlack, 2});
    const std::array<Point, 3> corners{{{1, 1}, {5, 2}, {3, 9}}};
    surface.Polyline(corners, {kRed, 2});
    surface.FillPolygon(corners, kRed);
  });
  EXPECT_THAT(svg, HasSubstr("<clipPath id=\"clip1\"><rect x=\"1\" y=\"2\" width=\"29\" "
                             "height=\"38\"/></clipPath>\n<g clip-path=\"url(#clip1)\">\n"));
  EXPECT_THAT(svg, HasSubstr("<rect x=\"5\" y=\"6\" width=\"4\" height=\"2\" fill=\"#000000\"/>"));
  EXPECT_THAT(svg, HasSubstr("<polyline points=\"1,1 5,2 3,9\""));
  EXPECT_THAT(svg, HasSubstr("<polygon points=\"1,1 5,2 3,9\" fill=\"#ff0000\"/>\n</g>\n</svg>"));
}

TEST(SvgSurface, EmbedsPictures) {
  const std::string svg = Svg([](Surface& surface) {
    surface.CopyPicture({{1, 1}, {0x112233}}, {0, 0, 10, 10});
    surface.CopyPicture({{0, 0}, {}}, {0, 0, 10, 10});
  });
  EXPECT_THAT(svg, HasSubstr("href=\"data:image/png;base64,iVBORw0KGgo"));
  EXPECT_THAT(svg.substr(svg.find("<image") + 1), Not(HasSubstr("<image")));
}

}  // namespace
}  // namespace orvik
