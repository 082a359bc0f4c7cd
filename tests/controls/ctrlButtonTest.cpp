#include <gmock/gmock.h>

#include <limits>

#include "controls/ctrlButton.h"
#include "support/RecordingHost.h"

namespace orvik {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class FakeTimer final : public Timer {
 public:
  bool Running() const override { return interval != 0; }
  void Start(int milliseconds) override {
    interval = milliseconds;
    ++starts;
  }
  void Stop() override { interval = 0; }

  int interval = 0;  // 0: not running
  int starts = 0;
};

// A button of 80 x 24 pixels with the caption "Save": 4 characters of 6 pixels, 13 high; bold 7.
class Button : public testing::Test {
 protected:
  void SetUp() override {
    button_.Resize(80, 24);
    button_.Caption("Save");
    button_.AttachHost(&host_);
    button_.OnClick = [this] { host_.Log("click"); };
  }

  std::vector<std::string> Painting() {
    RecordingSurface surface;
    button_.Paint(surface);
    return surface.Calls();
  }

  void ExpectRaised(const char* when) {
    EXPECT_EQ(button_.VisualState(), ctrlButton::State::Raised) << when;
  }

  FakeTimer* Timer1_ = new FakeTimer;  // the button's own
  test::RecordingHost host_;
  ctrlButton button_{std::unique_ptr<Timer>(Timer1_)};
};

const std::vector<std::string> kFace = {"fill 0,0 to 80,24 colour 0x8000000F"};

const std::vector<std::string> kRaisedEdges = {"line 0,0 to 79,0 colour 0x80000014 width 1 copy",
                                               "line 0,0 to 0,23 colour 0x80000014 width 1 copy",
                                               "line 0,23 to 79,23 colour 0x80000015 width 1 copy",
                                               "line 79,0 to 79,24 colour 0x80000015 width 1 copy",
                                               "line 1,1 to 78,1 colour 0x80000016 width 1 copy",
                                               "line 1,1 to 1,22 colour 0x80000016 width 1 copy",
                                               "line 1,22 to 78,22 colour 0x80000010 width 1 copy",
                                               "line 78,1 to 78,23 colour 0x80000010 width 1 copy"};

const std::vector<std::string> kSunkenEdges = {"line 0,0 to 79,0 colour 0x80000015 width 1 copy",
                                               "line 0,0 to 0,23 colour 0x80000015 width 1 copy",
                                               "line 0,23 to 79,23 colour 0x80000015 width 1 copy",
                                               "line 79,0 to 79,24 colour 0x80000015 width 1 copy",
                                               "line 1,1 to 78,1 colour 0x80000010 width 1 copy",
                                               "line 1,1 to 1,22 colour 0x80000010 width 1 copy",
                                               "line 1,22 to 78,22 colour 0x80000010 width 1 copy",
                                               "line 78,1 to 78,23 colour 0x80000010 width 1 copy"};

// (80 - 24) / 2 and (24 - 13) / 2
const std::string kCaption = "text 28,5 \"Save\" Arial 13 colour 0x80000012";

std::vector<std::string> Join(std::vector<std::string> first,
                              const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST_F(Button, IsRaisedAtFirst) {
  ExpectRaised("at first");
  EXPECT_FALSE(button_.IsPressed());
  EXPECT_FALSE(button_.Flash());
  EXPECT_THAT(Painting(), ElementsAreArray(Join(Join(kFace, kRaisedEdges), {kCaption})));
}

TEST_F(Button, WhilePressedIsSunken) {
  button_.MouseDown();
  EXPECT_EQ(button_.VisualState(), ctrlButton::State::Sunken);
  EXPECT_TRUE(button_.IsPressed());
  EXPECT_THAT(Painting(), ElementsAreArray(Join(Join(kFace, kSunkenEdges), {kCaption})));
}

TEST_F(Button, ReleasedInsideGivesOneClickAfterTheMouseIsGivenBack) {
  button_.MouseDown();
  button_.MouseUp(79, 23);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "release", "invalidate", "click"));
  ExpectRaised("after the click");
  button_.MouseUp(79, 23);
  EXPECT_THAT(host_.Take(), IsEmpty()) << "a second release";
}

TEST_F(Button, PressedAndReleasedOutsideGivesNoClickAndIsRaised) {
  button_.MouseDown();
  button_.MouseMove(-1, 5);
  ExpectRaised("outside");
  EXPECT_TRUE(button_.IsPressed());
  button_.MouseUp(-1, 5);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "invalidate", "release"));
  ExpectRaised("after the release");
  EXPECT_FALSE(button_.IsPressed());
}

TEST_F(Button, DraggedOutAndBackClicks) {
  button_.MouseDown();
  button_.MouseMove(200, 5);
  button_.MouseMove(40, 5);
  EXPECT_EQ(button_.VisualState(), ctrlButton::State::Sunken);
  button_.MouseUp(40, 5);
  EXPECT_EQ(host_.Take().back(), "click");
}

TEST_F(Button, ReleasedOverTheCaptionCountsAsInside) {
  Painting();
  const ButtonLabel& label = button_.lblCaption();
  button_.MouseDown();
  button_.MouseUp(label.left + 1, label.top + 1);
  EXPECT_EQ(host_.Take().back(), "click");
}

TEST_F(Button, PointsOutsideAreThoseBeyondItsPixels) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const auto& [x, y] : {std::pair{-1.0, 0.0},
                             {0.0, -1.0},
                             {80.0, 0.0},
                             {0.0, 24.0},
                             {1e300, 5.0},
                             {40.0, -1e9},
                             {nan, 5.0},
                             {5.0, nan}}) {
    button_.MouseDown();
    button_.MouseMove(x, y);
    ExpectRaised("outside");
    button_.MouseUp(x, y);
    EXPECT_NE(host_.Take().back(), "click") << x << ", " << y;
  }
}

TEST_F(Button, MovesWithoutAPressDoNothing) {
  button_.MouseMove(40, 12);
  EXPECT_THAT(host_.Take(), IsEmpty());
  ExpectRaised("never pressed");
}

TEST_F(Button, MovesThatKeepTheStateAskForNoPainting) {
  button_.MouseDown();
  host_.Take();
  button_.MouseMove(40, 12);
  button_.MouseMove(41, 12);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(Button, LosingTheMouseEndsThePressWithoutAClick) {
  button_.MouseDown();
  button_.CaptureLost();
  ExpectRaised("lost");
  button_.MouseUp(40, 12);
  EXPECT_THAT(host_.Take(), ElementsAre("capture", "invalidate", "invalidate"));
}

// Giving the mouse back makes the system report its loss before ReleaseMouse returns.
TEST_F(Button, TheReportOfItsOwnReleaseDoesNotCostTheClick) {
  host_.onRelease = [this] { button_.CaptureLost(); };
  button_.MouseDown();
  button_.MouseUp(40, 12);
  EXPECT_EQ(host_.Take().back(), "click");
}

TEST_F(Button, AnEmptyCaptionHidesTheLabelAndALaterOneIsCentredAgain) {
  button_.Caption("");
  EXPECT_THAT(Painting(), ElementsAreArray(Join(kFace, kRaisedEdges)));
  EXPECT_FALSE(button_.lblCaption().visible);
  button_.Caption("Discard");  // 7 characters of 6 pixels: (80 - 42) / 2
  EXPECT_EQ(Painting().back(), "text 19,5 \"Discard\" Arial 13 colour 0x80000012");
  EXPECT_TRUE(button_.lblCaption().visible);
}

TEST_F(Button, TheSameCaptionAgainAsksForNoPainting) {
  button_.Caption("Save");
  EXPECT_THAT(host_.Take(), IsEmpty());
  button_.Caption("Save as");
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
}

TEST_F(Button, PaintingAsksForNoPainting) {
  Painting();
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(Button, CenterLabelMeasuresOnTheScreen) {
  button_.CenterLabel();
  EXPECT_EQ(button_.lblCaption().left, 28);
  EXPECT_EQ(button_.lblCaption().top, 5);
  EXPECT_THAT(host_.Take(), IsEmpty());
}

TEST_F(Button, FlashRunsTheTimer) {
  button_.Flash(true);
  EXPECT_TRUE(button_.Flash());
  EXPECT_EQ(Timer1_->interval, ctrlButton::kFlashInterval);
  button_.Flash(true);
  EXPECT_EQ(Timer1_->starts, 1) << "a running flash keeps its rhythm";
  button_.Flash(false);
  EXPECT_FALSE(button_.Flash());
}

TEST_F(Button, FlashTurnsTheCaptionRedAndBoldAndBack) {
  button_.Flash(true);
  Timer1_->OnTick();
  EXPECT_EQ(Painting().back(), "text 26,5 \"Save\" Arial 13 bold colour 0x0000FF");
  Timer1_->OnTick();
  EXPECT_EQ(Painting().back(), kCaption);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate", "invalidate"));
}

TEST_F(Button, ATickCentresTheCaptionAtOnce) {
  button_.Flash(true);
  Timer1_->OnTick();
  EXPECT_EQ(button_.lblCaption().left, 26);  // (80 - 4 * 7) / 2
}

TEST_F(Button, TurningFlashOffWhileRedRestoresTheNormalColourAtOnce) {
  button_.Flash(true);
  Timer1_->OnTick();
  host_.Take();
  button_.Flash(false);
  EXPECT_EQ(button_.lblCaption().foreColor, kButtonText);
  EXPECT_FALSE(button_.lblCaption().fontBold);
  EXPECT_EQ(button_.lblCaption().left, 28);
  EXPECT_THAT(host_.Take(), ElementsAre("invalidate"));
}

TEST_F(Button, TheCaptionTakesTheFontThatItIsGiven) {
  button_.CaptionFont({"Tahoma", 20});
  EXPECT_EQ(Painting().back(), "text 20,2 \"Save\" Tahoma 20 colour 0x80000012");
}

TEST_F(Button, WorksWithoutAWindow) {
  button_.AttachHost(nullptr);
  int clicks = 0;
  button_.OnClick = [&] { ++clicks; };
  button_.MouseDown();
  button_.MouseUp(1, 1);
  button_.Flash(true);
  Timer1_->OnTick();
  EXPECT_EQ(clicks, 1);
}

TEST_F(Button, WithoutPixelsDrawsItsFaceOnly) {
  button_.Resize(0, 0);
  button_.Caption("");
  EXPECT_THAT(Painting(), ElementsAre("fill 0,0 to 0,0 colour 0x8000000F"));
}

// --- Mnemonic ---

// The face and the edges are 9 calls; the caption's parts follow. "Save": left (80 - 24) / 2 = 28,
// top (24 - 13) / 2 = 5.
std::vector<std::string> CaptionCalls(const std::vector<std::string>& painting) {
  return {painting.begin() + 9, painting.end()};
}

TEST_F(Button, TheMnemonicIsUnderlinedAndItsMarkIsNotShown) {
  const std::vector<std::string> plain = CaptionCalls(Painting());
  button_.Caption("Sa&ve");
  const std::vector<std::string> marked = CaptionCalls(Painting());
  EXPECT_EQ(button_.Caption(), "Sa&ve");
  EXPECT_EQ(button_.lblCaption().left, 28) << "centred as the caption without its mark";
  ASSERT_EQ(marked.size(), 3U);
  EXPECT_THAT(marked[0], testing::AllOf(testing::HasSubstr("\"Sa\""), testing::HasSubstr("28,5")));
  EXPECT_THAT(marked[1], testing::AllOf(testing::HasSubstr("\"v\""), testing::HasSubstr("40,5")));
  EXPECT_THAT(marked[1], testing::HasSubstr("underline"));
  EXPECT_THAT(marked[2], testing::AllOf(testing::HasSubstr("\"e\""), testing::HasSubstr("46,5")));
  EXPECT_EQ(plain.size(), 1U);
}

TEST_F(Button, TwoMarksAreOneThatIsShown) {
  button_.Caption("A&&B");
  EXPECT_THAT(CaptionCalls(Painting()), ElementsAre(testing::HasSubstr("\"A&B\"")));
}

TEST_F(Button, ACaptionIsGreyWhereTheButtonCannotBeUsed) {
  RecordingSurface surface;
  button_.Paint(surface, false);
  EXPECT_THAT(surface.Calls().back(), testing::HasSubstr("0x80000010"));
}

}  // namespace
}  // namespace orvik
