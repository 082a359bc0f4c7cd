#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "controls/ctrlPictureViewer.h"
#include "support/FilledPicture.h"
#include "support/RecordingHost.h"

namespace orvik {
namespace {

using test::FilledPicture;
using testing::ElementsAre;

// A picture of 200 x 100 in a viewer of 100 x 100.
class PictureViewerTest : public testing::Test {
 protected:
  PictureViewerTest() {
    viewer_.AttachHost(&host_);
    viewer_.Resize(100, 100);
    viewer_.Show(FilledPicture({200, 100}, 0x123456));
    host_.Take();
  }

  Area Place() const { return viewer_.View().Place(); }
  std::vector<std::string> Painted() {
    RecordingSurface surface;
    viewer_.Paint(surface);
    return surface.Take();
  }

  test::RecordingHost host_;
  ctrlPictureViewer viewer_;
};

// --- Painting ---

TEST_F(PictureViewerTest, PaintsTheWholePictureInTheMiddle) {
  EXPECT_THAT(Painted(), ElementsAre("fill 0,0 to 100,100 colour 0x8000000F",
                                     "picture 100x50 in 0,25 to 100,75"));
}

TEST_F(PictureViewerTest, PaintsOnlyWhatTheControlShowsOfALargerPicture) {
  viewer_.MouseWheel(100, 50, 50);  // 1600 x 800
  EXPECT_THAT(Painted(), ElementsAre("fill 0,0 to 100,100 colour 0x8000000F",
                                     "picture 100x100 in 0,0 to 100,100"));
}

TEST_F(PictureViewerTest, WithoutAPictureItIsEmpty) {
  viewer_.Show({});
  EXPECT_THAT(Painted(), ElementsAre("fill 0,0 to 100,100 colour 0x8000000F"));
  viewer_.MouseWheel(1, 50, 50);
  viewer_.MouseDown(1, 1);
  viewer_.MouseMove(5, 5);
  viewer_.DoubleClick();
  viewer_.KeyDown(0x25);
  EXPECT_THAT(Painted(), ElementsAre("fill 0,0 to 100,100 colour 0x8000000F"));
  EXPECT_EQ(viewer_.Pointer(), PointerShape::Arrow);
}

TEST_F(PictureViewerTest, APictureWhosePixelsDoNotMatchItsSizeIsRefused) {
  EXPECT_THROW(viewer_.Show({{3, 3}, {1, 2}}), std::invalid_argument);
  EXPECT_EQ(Place(), (Area{0, 25, 100, 75})) << "the one before is still shown";
}

TEST_F(PictureViewerTest, AnotherSizeFitsIt) {
  viewer_.Resize(200, 160);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
  EXPECT_THAT(Painted(), ElementsAre("fill 0,0 to 200,160 colour 0x8000000F",
                                     "picture 200x100 in 0,30 to 200,130"));
}

// --- Wheel ---

TEST_F(PictureViewerTest, OneNotchOfTheWheelZoomsByAQuarterAboutThePointer) {
  viewer_.MouseWheel(1, 20, 50);
  EXPECT_EQ(viewer_.View().Zoom(), 0.625);
  EXPECT_EQ(Place().left, -5);  // 20 - 20 x 1.25
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
  viewer_.MouseWheel(-1, 20, 50);
  EXPECT_EQ(viewer_.View().Zoom(), 0.5);
}

TEST_F(PictureViewerTest, PartsOfANotchAddUp) {
  for (int i = 0; i < 4; ++i) viewer_.MouseWheel(0.25, 50, 50);
  EXPECT_NEAR(viewer_.View().Zoom(), 0.625, 1e-12);
}

TEST_F(PictureViewerTest, TurnedOutsideItZoomsAboutTheMiddle) {
  viewer_.MouseWheel(4, 500, -3);
  const Area place = Place();
  EXPECT_EQ(place.left + place.right, 100);
}

// --- Dragging ---

TEST_F(PictureViewerTest, ADragTakesThePictureWithIt) {
  viewer_.MouseWheel(100, 50, 50);
  const Area before = Place();
  host_.Take();
  viewer_.MouseDown(60, 60);
  EXPECT_THAT(host_.Take(), ElementsAre("capture"));
  viewer_.MouseMove(70, 55);
  viewer_.MouseMove(90, 52);
  EXPECT_EQ(Place().left, before.left + 30);
  EXPECT_EQ(Place().top, before.top - 8);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate", "invalidate"));
  viewer_.MouseUp();
  EXPECT_THAT(host_.Take(), ElementsAre("release"));
  viewer_.MouseMove(10, 10);
  EXPECT_EQ(Place().left, before.left + 30);
  EXPECT_TRUE(host_.Take().empty());
}

TEST_F(PictureViewerTest, ALostMouseEndsTheDrag) {
  viewer_.MouseWheel(100, 50, 50);
  viewer_.MouseDown(60, 60);
  const Area before = Place();
  host_.Take();
  viewer_.CaptureLost();
  viewer_.MouseMove(70, 55);
  viewer_.MouseUp();
  EXPECT_EQ(Place(), before);
  EXPECT_TRUE(host_.Take().empty());
}

TEST_F(PictureViewerTest, AFittedPictureIsNotDragged) {
  viewer_.MouseDown(60, 60);
  viewer_.MouseMove(70, 70);
  viewer_.MouseUp();
  EXPECT_TRUE(host_.Take().empty());
}

TEST_F(PictureViewerTest, ThePointerIsAHandWhereThePictureCanBeDragged) {
  EXPECT_EQ(viewer_.Pointer(), PointerShape::Arrow);
  viewer_.MouseWheel(1, 50, 50);
  EXPECT_EQ(viewer_.Pointer(), PointerShape::Hand);
  viewer_.MouseDown(60, 60);
  EXPECT_EQ(viewer_.Pointer(), PointerShape::Hand);
  viewer_.MouseUp();
  viewer_.DoubleClick();
  EXPECT_EQ(viewer_.Pointer(), PointerShape::Arrow);
}

TEST_F(PictureViewerTest, ADoubleClickFits) {
  viewer_.MouseWheel(5, 20, 30);
  viewer_.DoubleClick();
  EXPECT_TRUE(viewer_.View().IsFitted());
}

// --- Keys ---

constexpr std::int16_t kLeft = 0x25;
constexpr std::int16_t kUp = 0x26;
constexpr std::int16_t kRight = 0x27;
constexpr std::int16_t kDown = 0x28;

TEST_F(PictureViewerTest, PlusAndMinusZoomAboutTheMiddleAndZeroFits) {
  const struct { std::int16_t plus, minus, zero; } rows[] = {{0xBB, 0xBD, '0'}, {0x6B, 0x6D, 0x60}};
  for (const auto& row : rows) {
    viewer_.KeyDown(row.plus);
    viewer_.KeyDown(row.plus);
    viewer_.KeyDown(row.minus);
    EXPECT_NEAR(viewer_.View().Zoom(), 0.625, 1e-12);
    EXPECT_NEAR(Place().left + Place().right, 100, 1);
    viewer_.KeyDown(row.zero);
    EXPECT_TRUE(viewer_.View().IsFitted());
  }
}

TEST_F(PictureViewerTest, ArrowKeysLeadTheViewOverThePicture) {
  viewer_.MouseWheel(100, 50, 50);
  const Area start = Place();
  viewer_.KeyDown(kRight);
  EXPECT_EQ(Place().left, start.left - 10);
  viewer_.KeyDown(kDown);
  EXPECT_EQ(Place().top, start.top - 10);
  viewer_.KeyDown(kLeft);
  viewer_.KeyDown(kUp);
  EXPECT_EQ(Place(), start);
}

TEST_F(PictureViewerTest, OtherKeysAreNotItsOwn) {
  for (const std::int16_t key : {std::int16_t{13}, std::int16_t{27}, std::int16_t{9}}) {
    EXPECT_FALSE(ctrlPictureViewer::WantsKey(key)) << key;
    viewer_.KeyDown(key);
  }
  EXPECT_TRUE(host_.Take().empty());
  EXPECT_TRUE(ctrlPictureViewer::WantsKey(kLeft));
  EXPECT_TRUE(ctrlPictureViewer::WantsKey(0xBB));
}

}  // namespace
}  // namespace orvik
