// Esc ends a drag and puts everything back as it was before.
#include "InteractiveFixture.h"
#include "PixelSurface.h"

namespace orvik {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t kEscape = 27;

class CancelDrag : public InteractiveFixture {
 protected:
  void SetUp() override {
    InteractiveFixture::SetUp();
    host_.isShown = false;  // events and requests only
  }

  void DragAndCancel() {
    chart_.MouseDown(kLeft, 600, 450);
    chart_.MouseMove(650, 460);
    host_.Take();
    chart_.KeyDown(kEscape);
  }
};

TEST_F(CancelDrag, PutsThePointBackAndRaisesChangeThenMouseReleased) {
  PressAndRelease(480, 434);
  float E = 0;
  ASSERT_TRUE(chart_.GetE(E));
  DragAndCancel();
  EXPECT_THAT(host_.Take(),
              ElementsAre("release", "invalidate", "invalidate", "Change", "MouseReleased"));
  EXPECT_FALSE(chart_.MouseCaptured());
  ExpectPixel(480, 434);
  EXPECT_EQ(chart_.Point().V, 3.5);
  float again = 0;
  EXPECT_TRUE(chart_.GetE(again));
  EXPECT_EQ(again, E);
}

// What was solved exactly is not solved anew from its pixel.
TEST_F(CancelDrag, KeepsASolutionExactly) {
  std::string R;
  ASSERT_TRUE(chart_.SetHotspotUsing_EV("61.5", "3.1415926", R));
  const double solved = chart_.Point().R;
  const auto curve = chart_.Point().curve;
  DragAndCancel();
  EXPECT_EQ(chart_.Point().V, 3.1415926);
  EXPECT_EQ(chart_.Point().R, solved);
  EXPECT_EQ(chart_.Point().E, 61.5);
  ASSERT_TRUE(chart_.Point().curve);
  EXPECT_EQ(chart_.Point().curve->R, curve->R);
}

TEST_F(CancelDrag, HidesAPointThatWasNotThere) {
  std::string E;
  chart_.SetHotspotUsing_RV("0.2", "99", E);
  const std::string message = chart_.ErrMsg();
  ASSERT_FALSE(message.empty());
  DragAndCancel();
  EXPECT_FALSE(chart_.HotSpotVisibile());
  EXPECT_EQ(chart_.ErrMsg(), message);
  EXPECT_EQ(chart_.HelpTopicIndex(), 1);
  EXPECT_EQ(host_.Take().back(), "MouseReleased");
}

TEST_F(CancelDrag, TheMovesAndTheReleaseThatFollowDoNothing) {
  PressAndRelease(480, 434);
  DragAndCancel();
  host_.Take();
  chart_.MouseMove(700, 460);
  chart_.MouseUp();
  chart_.KeyDown(kEscape);
  EXPECT_THAT(host_.Take(), IsEmpty());
  ExpectPixel(480, 434);
}

TEST_F(CancelDrag, TheReportOfItsOwnReleaseIsNotASecondRelease) {
  host_.onRelease = [this] { chart_.CaptureLost(); };
  DragAndCancel();
  const auto log = host_.Take();
  EXPECT_EQ(std::ranges::count(log, "MouseReleased"), 1);
}

TEST_F(CancelDrag, FollowsANewSize) {
  PressAndRelease(480, 434);
  chart_.MouseDown(kLeft, 600, 450);
  chart_.Resize(400, 900);  // the frame is 360 wide, from 20 on
  chart_.KeyDown(kEscape);
  EXPECT_EQ(chart_.Point().V, 3.5);
  EXPECT_EQ(chart_.Point().pixel.x, 20 + 180);
}

// The point of other curves is nothing to go back to.
TEST_F(CancelDrag, OnNewCurvesItOnlyEndsTheDrag) {
  PressAndRelease(480, 434);
  chart_.MouseDown(kLeft, 600, 450);
  chart_.SetCurveData(kTampa);
  host_.Take();
  chart_.KeyDown(kEscape);
  EXPECT_THAT(host_.Take(), ElementsAre("release", "MouseReleased"));
  ExpectPixel(600, 450);
  chart_.MouseDown(kLeft, 500, 450);
  chart_.Clear();
  chart_.KeyDown(kEscape);
  EXPECT_FALSE(chart_.HotSpotVisibile());
}

TEST_F(CancelDrag, EscIsWantedOnlyDuringADrag) {
  EXPECT_FALSE(chart_.WantsKey(kEscape));
  chart_.MouseDown(kLeft, 600, 450);
  EXPECT_TRUE(chart_.WantsKey(kEscape));
  chart_.MouseUp();
  EXPECT_FALSE(chart_.WantsKey(kEscape));
  for (const std::int16_t key : {kSpace, kArrowLeft, kArrowUp, kArrowRight, kArrowDown}) {
    EXPECT_TRUE(chart_.WantsKey(key)) << key;
  }
  for (const int key : {0, 9, 13, 33, 36, 41, 112}) {
    EXPECT_FALSE(chart_.WantsKey(static_cast<std::int16_t>(key))) << key;
  }
}

// A window that keeps what is drawn on it.
class PixelHost final : public Host {
 public:
  PixelSurface screen;

  void Invalidate() override {}
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return &screen; }
};

TEST_F(CancelDrag, LeavesThePictureAsItWasAlsoUnderTheSpaceBar) {
  PixelHost host;
  chart_.AttachHost(&host);
  PressAndRelease(480, 434);
  const auto before = host.screen.pixels;
  for (const bool highlights : {false, true}) {
    chart_.MouseDown(kLeft, 600, 450);
    chart_.MouseMove(650, 460);
    if (highlights) chart_.KeyDown(kSpace);
    chart_.KeyDown(kEscape);
    EXPECT_EQ(host.screen.pixels, before) << highlights;
  }
  chart_.AttachHost(nullptr);
}

}  // namespace
}  // namespace orvik
