#include <gmock/gmock.h>

#include <array>

#include "platform/EdgeRing.h"
#include "platform/recording/RecordingSurface.h"

namespace orvik {
namespace {

using testing::ElementsAre;

TEST(RecordingSurface, WritesEveryCallAsOneLine) {
  RecordingSurface surface;
  const std::array<Point, 3> points{{{1, 2}, {3, -4}, {5, 6}}};
  surface.Line({1, 2}, {3, 4}, {kBlack, 2});
  surface.Line({1, 2}, {3, 4}, {0xFFFF00, 1, DrawMode::ExclusiveOr});
  surface.Polyline(points, {kRed});
  surface.FillArea({0, 0, 80, 24}, kButtonFace);
  surface.FillPolygon(points, kRed);
  surface.WriteText({3, 4}, "a \"b\"", {.pixelHeight = 12}, kBlack);
  surface.CopyPicture({{20, 10}, {}}, {0, 0, 80, 24});
  { const ClipScope clip(surface, {1, 1, 9, 9}); }
  EXPECT_THAT(surface.Calls(),
              ElementsAre("line 1,2 to 3,4 colour 0x000000 width 2 copy",
                          "line 1,2 to 3,4 colour 0xFFFF00 width 1 xor",
                          "polyline 1,2 3,-4 5,6 colour 0x0000FF width 1 copy",
                          "fill 0,0 to 80,24 colour 0x8000000F",
                          "fill polygon 1,2 3,-4 5,6 colour 0x0000FF",
                          "text 3,4 \"a \"b\"\" Arial 12 colour 0x000000",
                          "picture 20x10 in 0,0 to 80,24", "clip 1,1 to 9,9", "unclip"));
}

TEST(RecordingSurface, WritesTheStylesOfAFont) {
  RecordingSurface surface;
  surface.WriteText({0, 0}, "x", {"Times", 9, 900, true, true, true, true}, kBlack);
  EXPECT_THAT(surface.Calls(),
              ElementsAre("text 0,0 \"x\" Times 9 bold italic underline strikethrough angle 900 "
                          "colour 0x000000"));
}

TEST(RecordingSurface, MeasuresHalfTheHeightForEachCharacter) {
  RecordingSurface surface;
  EXPECT_EQ(surface.MeasureText("", {.pixelHeight = 13}), (Size{0, 13}));
  EXPECT_EQ(surface.MeasureText("Save", {.pixelHeight = 13}), (Size{24, 13}));
  EXPECT_EQ(surface.MeasureText("Ca\xC3\xB1o", {.pixelHeight = 13}), (Size{24, 13}));
  EXPECT_EQ(surface.MeasureText("Save", {.pixelHeight = 13, .bold = true}), (Size{28, 13}));
  EXPECT_EQ(surface.MeasureText("Save", {.pixelHeight = 13, .escapement = 900}), (Size{24, 13}));
  EXPECT_THAT(surface.Calls(), ElementsAre());
}

TEST(RecordingSurface, SupportsTheFeaturesThatItIsSetTo) {
  RecordingSurface surface;
  EXPECT_TRUE(surface.Supports(SurfaceFeature::ExclusiveOr));
  surface.Support(SurfaceFeature::ExclusiveOr, false);
  EXPECT_FALSE(surface.Supports(SurfaceFeature::ExclusiveOr));
}

TEST(EdgeRing, CoversTheBorderPixelsOfItsArea) {
  RecordingSurface surface;
  DrawEdgeRing(surface, {10, 20, 14, 23}, kRed, kBlack);
  EXPECT_THAT(surface.Calls(), ElementsAre("line 10,20 to 13,20 colour 0x0000FF width 1 copy",
                                           "line 10,20 to 10,22 colour 0x0000FF width 1 copy",
                                           "line 10,22 to 13,22 colour 0x000000 width 1 copy",
                                           "line 13,20 to 13,23 colour 0x000000 width 1 copy"));
}

TEST(EdgeRing, OfNoPixelsDrawsNothing) {
  RecordingSurface surface;
  for (const Area area : {Area{0, 0, 0, 5}, Area{0, 0, 5, 0}, Inside({0, 0, 1, 9})}) {
    DrawEdgeRing(surface, area, kRed, kBlack);
  }
  EXPECT_THAT(surface.Calls(), ElementsAre());
}

}  // namespace
}  // namespace orvik
