// The surface on a device context, pixel by pixel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <set>
#include <utility>

#include "GuiObjects.h"
#include "MemoryScreen.h"

namespace orvik {
namespace {

using test::GuiObjects;
using test::MemoryScreen;
using Pixels = std::set<std::pair<int, int>>;

constexpr Size kSize{60, 40};
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr Pen kFlip{0xFFFF00, 1, DrawMode::ExclusiveOr};

class OnGdi : public testing::Test {
 protected:
  // Those that are not white.
  Pixels Drawn() const {
    Pixels drawn;
    for (int y = 0; y < kSize.height; ++y) {
      for (int x = 0; x < kSize.width; ++x) {
        if (screen_.At({x, y}) != kWhite) drawn.insert({x, y});
      }
    }
    return drawn;
  }

  MemoryScreen screen_{kSize};
  GdiSurface surface_{screen_.Dc()};
};

Pixels Level(int y, int from, int upTo) {
  Pixels pixels;
  for (int x = from; x < upTo; ++x) pixels.insert({x, y});
  return pixels;
}

Font Arial(int height, int escapement = 0) {
  Font font;
  font.pixelHeight = height;
  font.escapement = escapement;
  return font;
}

// --- Lines ---

TEST_F(OnGdi, ALineLeavesItsLastPixelOut) {
  struct Case {
    Point from, to;
    Pixels pixels;
  };
  for (const Case& c : {Case{{3, 4}, {6, 4}, {{3, 4}, {4, 4}, {5, 4}}},
                        Case{{6, 4}, {3, 4}, {{4, 4}, {5, 4}, {6, 4}}},
                        Case{{3, 4}, {3, 7}, {{3, 4}, {3, 5}, {3, 6}}},
                        Case{{3, 7}, {3, 4}, {{3, 5}, {3, 6}, {3, 7}}},
                        Case{{3, 4}, {6, 7}, {{3, 4}, {4, 5}, {5, 6}}}, Case{{3, 4}, {3, 4}, {}}}) {
    MemoryScreen screen(kSize);
    GdiSurface(screen.Dc()).Line(c.from, c.to, {});
    Pixels drawn;
    for (int y = 0; y < kSize.height; ++y) {
      for (int x = 0; x < kSize.width; ++x) {
        if (screen.At({x, y}) == 0) drawn.insert({x, y});
      }
    }
    EXPECT_EQ(drawn, c.pixels) << c.from.x << "," << c.from.y << " to " << c.to.x << "," << c.to.y;
  }
}

TEST_F(OnGdi, APolylineLeavesOnlyItsVeryLastPixelOut) {
  surface_.Polyline(std::array{Point{2, 2}, Point{5, 2}, Point{5, 5}}, {});
  EXPECT_EQ(Drawn(), (Pixels{{2, 2}, {3, 2}, {4, 2}, {5, 2}, {5, 3}, {5, 4}}));
}

TEST_F(OnGdi, EveryPixelOfAClosedFigureIsFlippedOnceAlsoItsCorners) {
  surface_.Polyline(std::array{Point{2, 2}, Point{6, 2}, Point{6, 5}, Point{2, 5}, Point{2, 2}},
                    kFlip);
  const Pixels box{{2, 2}, {3, 2}, {4, 2}, {5, 2}, {6, 2}, {6, 3}, {6, 4},
                   {6, 5}, {5, 5}, {4, 5}, {3, 5}, {2, 5}, {2, 4}, {2, 3}};
  EXPECT_EQ(Drawn(), box);
  for (const auto& [x, y] : box) EXPECT_EQ(screen_.At({x, y}), 0xFF0000U) << x << "," << y;
}

TEST_F(OnGdi, ExclusiveOrTwiceRestoresEveryPixelWhateverLiesBelow) {
  std::srand(7);
  for (int i = 0; i < 40; ++i) {
    surface_.FillArea({i, i % 30, i + 20, 40}, static_cast<Colour>(std::rand()) & 0xFFFFFF);
  }
  const Picture before = screen_.Pixels();
  std::vector<Point> points;
  for (int i = 0; i < 60; ++i) points.push_back({std::rand() % 80 - 10, std::rand() % 60 - 10});
  for (const int width : {1, 3}) {
    const Pen pen{0xFFFF00, width, DrawMode::ExclusiveOr};
    surface_.Polyline(points, pen);
    EXPECT_NE(screen_.Pixels().pixels, before.pixels) << width;
    surface_.Polyline(points, pen);
    EXPECT_EQ(screen_.Pixels().pixels, before.pixels) << width;
  }
}

TEST_F(OnGdi, AWideLineIsCentredWithFlatEnds) {
  surface_.Line({10, 20}, {30, 20}, {kBlack, 3});
  for (const auto& [x, y] : Drawn()) {
    EXPECT_TRUE(19 <= y && y <= 21 && 9 <= x && x <= 30) << x << "," << y;
  }
  for (int y = 19; y <= 21; ++y) {
    EXPECT_EQ(screen_.At({20, y}), 0U) << y;
  }
}

TEST_F(OnGdi, FewerThanTwoPointsAreNoLine) {
  surface_.Polyline({}, {});
  surface_.Polyline(std::array{Point{5, 5}}, {});
  EXPECT_EQ(Drawn(), Pixels{});
}

// --- Shapes ---

TEST_F(OnGdi, AnAreaIsFilledUpToItsRightAndBottom) {
  surface_.FillArea({2, 3, 5, 4}, 0x0060D8);  // blue, green, red
  EXPECT_EQ(Drawn(), Level(3, 2, 5));
  EXPECT_EQ(screen_.At({2, 3}), 0xD86000U);
  surface_.FillArea({9, 9, 9, 20}, kBlack);
  surface_.FillArea({20, 9, 9, 20}, kBlack);
  EXPECT_EQ(Drawn(), Level(3, 2, 5));
}

TEST_F(OnGdi, APolygonClosesItself) {
  surface_.FillPolygon(std::array{Point{10, 10}, Point{20, 10}, Point{20, 20}, Point{10, 20}},
                       kRed);
  EXPECT_EQ(screen_.At({15, 15}), 0xFF0000U);
  EXPECT_EQ(screen_.At({10, 10}), 0xFF0000U);
  for (const auto& [x, y] : Drawn()) {
    EXPECT_TRUE(10 <= x && x <= 20 && 10 <= y && y <= 20) << x << "," << y;
  }
}

TEST_F(OnGdi, SystemColoursAreTheUsersOwn) {
  for (const Colour colour :
       {kButtonFace, kButtonShadow, k3DHighlight, k3DDarkShadow, k3DLight, kWindowText}) {
    EXPECT_EQ(DeviceColour(colour), ::GetSysColor(static_cast<int>(colour & 0xFF))) << colour;
  }
  EXPECT_EQ(DeviceColour(0x123456), COLORREF{0x123456});
}

// --- Text ---

// Smoothing may colour the next pixel on each side.
TEST_F(OnGdi, TextStaysInItsExtent) {
  const Font font = Arial(14);
  const Size size = surface_.MeasureText("E=95%", font);
  ASSERT_GT(size.width, 20);
  ASSERT_LT(size.width, 50);
  ASSERT_GE(size.height, 14);
  surface_.WriteText({5, 6}, "E=95%", font, kBlack);
  const Pixels drawn = Drawn();
  EXPECT_GT(drawn.size(), 30U);
  for (const auto& [x, y] : drawn) {
    EXPECT_TRUE(4 <= x && x <= 5 + size.width && 6 <= y && y < 6 + size.height) << x << "," << y;
  }
}

TEST_F(OnGdi, TextAtNinetyDegreesReadsUpwardsFromItsCorner) {
  const Font font = Arial(14, 900);
  const Size level = surface_.MeasureText("R=1", Arial(14));
  surface_.WriteText({10, 35}, "R=1", font, kBlack);
  const Pixels drawn = Drawn();
  EXPECT_GT(drawn.size(), 15U);
  for (const auto& [x, y] : drawn) {
    EXPECT_TRUE(10 <= x && x < 10 + level.height) << x << "," << y;
    EXPECT_TRUE(35 - level.width - 1 <= y && y <= 35) << x << "," << y;
  }
}

TEST_F(OnGdi, TextIsDrawnInItsColourWithoutABackground) {
  surface_.FillArea({0, 0, 60, 40}, 0x00FF00);
  surface_.WriteText({5, 0}, "I", Arial(36), kRed);
  int red = 0;
  for (int y = 0; y < kSize.height; ++y) {
    for (int x = 0; x < kSize.width; ++x) {
      const std::uint32_t pixel = screen_.At({x, y});
      EXPECT_EQ(pixel & 0xFF, 0U);
      if (pixel == 0xFF0000) ++red;
    }
  }
  EXPECT_GT(red, 5);
  EXPECT_EQ(screen_.At({5, 1}), 0x00FF00U);
}

// Letters that no single code page holds beside each other.
TEST_F(OnGdi, TextOfAnyLanguageIsMeasuredAndDrawn) {
  const Font font = Arial(14);
  EXPECT_EQ(surface_.MeasureText("\u00C4", font), surface_.MeasureText("A", font));
  EXPECT_LT(surface_.MeasureText("\u0416\u0394\u00C4", font).width, 60);
  EXPECT_GT(surface_.MeasureText("\u0416\u0394\u00C4", font).width,
            surface_.MeasureText("\u0416\u0394", font).width);
  surface_.WriteText({2, 2}, "\u0416", font, kBlack);
  const Pixels zhe = Drawn();
  MemoryScreen other(kSize);
  GdiSurface(other.Dc()).WriteText({2, 2}, "?", font, kBlack);
  EXPECT_NE(screen_.Pixels().pixels, other.Pixels().pixels);
  EXPECT_GT(zhe.size(), 20U);
}

TEST_F(OnGdi, AFaceThatIsNotThereIsReplaced) {
  for (const char* face :
       {"", "No such face", "\u660E\u671D", "A face whose name is far too long"}) {
    Font font = Arial(14);
    font.face = face;
    EXPECT_GT(surface_.MeasureText("A", font).width, 0) << face;
  }
}

TEST_F(OnGdi, StylesAreDrawn) {
  const Size plain = surface_.MeasureText("Runoff", Arial(12));
  Font bold = Arial(12);
  bold.bold = true;
  EXPECT_GT(surface_.MeasureText("Runoff", bold).width, plain.width);
  for (const bool isUnderline : {true, false}) {
    Font lined = Arial(12);
    (isUnderline ? lined.underline : lined.strikethrough) = true;
    MemoryScreen screen(kSize);
    GdiSurface(screen.Dc()).WriteText({2, 2}, "      ", lined, kBlack);
    EXPECT_NE(screen.Pixels().pixels, screen_.Pixels().pixels) << isUnderline;
  }
}

TEST_F(OnGdi, AFontWithoutAHeightLeavesTheTextOut) {
  for (const int height : {0, -12}) {
    EXPECT_EQ(surface_.MeasureText("Runoff", Arial(height)), Size{}) << height;
    surface_.WriteText({2, 2}, "Runoff", Arial(height), kBlack);
    EXPECT_EQ(Drawn(), Pixels{}) << height;
  }
}

// All of GDI's handles taken; given back in the end.
class AllHandles {
 public:
  AllHandles() {
    while (const HRGN region = ::CreateRectRgn(0, 0, 1, 1)) regions_.emplace_back(region);
  }
  std::size_t Count() const { return regions_.size(); }

 private:
  std::vector<GdiObject<HRGN>> regions_;
};

TEST_F(OnGdi, AFontThatCannotBeMadeLeavesTheTextOutAndTheRestIsDrawn) {
  {
    const AllHandles none;
    ASSERT_GT(none.Count(), 100U);
    EXPECT_EQ(surface_.MeasureText("Runoff", Arial(12)), Size{});
    surface_.WriteText({2, 2}, "Runoff", Arial(12), kBlack);
    EXPECT_EQ(Drawn(), Pixels{});
    surface_.Line({3, 4}, {6, 4}, {});
    surface_.FillArea({3, 9, 6, 10}, kRed);
  }
  Pixels expected = Level(4, 3, 6);
  expected.merge(Level(9, 3, 6));
  EXPECT_EQ(Drawn(), expected);
  EXPECT_GT(surface_.MeasureText("Runoff", Arial(12)).width, 0);
}

// --- Pictures and clips ---

TEST_F(OnGdi, APictureIsCopiedUnscaledAsFarAsItFits) {
  const Picture picture{{3, 2}, {0x112233, 0x445566, 0x778899, 0xAABBCC, 0xDDEEFF, 0x010203}};
  surface_.CopyPicture(picture, {10, 10, 12, 30});
  EXPECT_EQ(Drawn(), (Pixels{{10, 10}, {11, 10}, {10, 11}, {11, 11}}));
  EXPECT_EQ(screen_.At({10, 10}), 0x112233U);
  EXPECT_EQ(screen_.At({11, 11}), 0xDDEEFFU);
  surface_.CopyPicture({}, {0, 0, 60, 40});
  surface_.CopyPicture(picture, {20, 10, 20, 30});
  EXPECT_EQ(Drawn().size(), 4U);
  EXPECT_THROW(surface_.CopyPicture({{2, 2}, {1, 2, 3}}, {0, 0, 9, 9}), std::invalid_argument);
  EXPECT_THROW(surface_.CopyPicture({{2, 2}, {1, 2, 3, 4, 5}}, {0, 0, 9, 9}),
               std::invalid_argument);
  EXPECT_EQ(Drawn().size(), 4U);
}

TEST_F(OnGdi, ClipsNestAndEnd) {
  const Pen pen;
  surface_.PushClip({5, 0, 20, 40});
  surface_.PushClip({0, 0, 10, 40});
  surface_.Line({0, 1}, {60, 1}, pen);
  surface_.PopClip();
  surface_.Line({0, 2}, {60, 2}, pen);
  surface_.PopClip();
  surface_.Line({0, 3}, {60, 3}, pen);
  Pixels expected = Level(1, 5, 10);
  expected.merge(Level(2, 5, 20));
  expected.merge(Level(3, 0, 60));
  EXPECT_EQ(Drawn(), expected);
}

// --- Metafiles ---

void DrawSample(Surface& surface) {
  const Pen mark = surface.Supports(SurfaceFeature::ExclusiveOr)
                       ? Pen{0xFFFF00, 1, DrawMode::ExclusiveOr}
                       : Pen{kRed};
  surface.FillArea({2, 2, 50, 10}, 0x0060D8);
  surface.Line({2, 20}, {40, 20}, {0x7A2E00});
  surface.Line({2, 25}, {40, 25}, {0x6E9400});
  surface.FillPolygon(std::array{Point{2, 30}, Point{12, 30}, Point{12, 38}}, 0xD88A1E);
  surface.Line({45, 38}, {45, 12}, mark);
}

// It may be played upon paper, where nothing can be flipped.
TEST(GdiMetafile, PlaysTheSamePictureAndTakesNoExclusiveOr) {
  const HDC recording = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(recording);
  {
    GdiSurface surface(recording);
    EXPECT_FALSE(surface.Supports(SurfaceFeature::ExclusiveOr));
    DrawSample(surface);
  }
  const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
  const MemoryScreen direct(kSize);
  const MemoryScreen played(kSize);
  GdiSurface surface(direct.Dc());
  DrawSample(surface);
  ENHMETAHEADER header{};
  ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
  const RECT place{header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                   header.rclBounds.bottom};
  ::PlayEnhMetaFile(played.Dc(), metafile, &place);
  ::DeleteEnhMetaFile(metafile);
  for (const Point at :
       {Point{20, 5}, Point{20, 20}, Point{20, 25}, Point{9, 33}, Point{45, 25}, Point{30, 15}}) {
    EXPECT_EQ(played.At(at), direct.At(at)) << at.x << "," << at.y;
  }
}

// --- The device context ---

TEST(GdiSurfaceLife, TheDeviceContextIsLeftAsItWas) {
  const MemoryScreen screen(kSize);
  const HDC dc = screen.Dc();
  const auto state = [&] {
    RECT clip{};
    ::GetClipBox(dc, &clip);
    return std::tuple(::GetCurrentObject(dc, OBJ_PEN), ::GetCurrentObject(dc, OBJ_BRUSH),
                      ::GetCurrentObject(dc, OBJ_FONT), ::GetROP2(dc), ::GetBkMode(dc),
                      ::GetTextColor(dc), ::GetTextAlign(dc), ::GetDCPenColor(dc),
                      ::GetDCBrushColor(dc), clip.left, clip.right, clip.bottom);
  };
  const auto before = state();
  {
    GdiSurface surface(dc);
    surface.PushClip({1, 1, 9, 9});  // never popped
    surface.Line({0, 0}, {9, 9}, {kRed, 3, DrawMode::ExclusiveOr});
    surface.FillPolygon(std::array{Point{0, 0}, Point{9, 0}, Point{9, 9}}, kRed);
    surface.WriteText({0, 0}, "A", Arial(9), kRed);
  }
  EXPECT_TRUE(state() == before);
}

TEST(GdiSurfaceLife, NothingIsLeftBehind) {
  const MemoryScreen screen(kSize);
  const Picture picture{{1, 1}, {0x112233}};
  const auto draw = [&] {
    GdiSurface surface(screen.Dc());
    const ClipScope clip(surface, {1, 1, 30, 30});
    surface.Line({0, 0}, {9, 9}, {kRed, 3});
    surface.FillPolygon(std::array{Point{0, 0}, Point{9, 0}, Point{9, 9}}, kRed);
    surface.WriteText({0, 0}, "A", Arial(9, 900), kRed);
    surface.MeasureText("A", Arial(0));
    surface.CopyPicture(picture, {0, 0, 9, 9});
  };
  draw();
  const GuiObjects before = GuiObjects::Count();
  for (int i = 0; i < 300; ++i) draw();
  EXPECT_EQ(GuiObjects::Count(), before);
}

// That the count itself can tell.
TEST(GuiObjectsTest, AnObjectMoreIsCounted) {
  const auto makeWindow = [] {
    return ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                           nullptr);
  };
  const HWND first = makeWindow();  // it brings the system's own along
  const GuiObjects before = GuiObjects::Count();
  const GdiObject<HPEN> pen(::CreatePen(PS_SOLID, 1, 0));
  EXPECT_EQ(GuiObjects::Count().drawing, before.drawing + 1);
  const HMENU menu = ::CreateMenu();
  EXPECT_EQ(GuiObjects::Count().menus, before.menus + 1);
  ::DestroyMenu(menu);
  const HWND window = makeWindow();
  EXPECT_EQ(GuiObjects::Count().windows, before.windows + 1);
  ::DestroyWindow(window);
  EXPECT_EQ(GuiObjects::Count().windows, before.windows);
  ::DestroyWindow(first);
}

}  // namespace
}  // namespace orvik
