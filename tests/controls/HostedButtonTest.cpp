#include <gtest/gtest.h>

#include "controls/HostedButton.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

class HostedButtonTest : public testing::Test {
 protected:
  test::UserToolkit toolkit_;
  int clicks_ = 0;
  HostedButton button_{toolkit_, "cmdReCalc", "Recalculate", [this] { ++clicks_; }};
  HeadlessControlHost& host_ = toolkit_.Find<HeadlessControlHost>("cmdReCalc");
};

TEST_F(HostedButtonTest, AClickOfTheLeftButtonArrives) {
  toolkit_.ClickButton("cmdReCalc");
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(button_.Button().Caption(), "Recalculate");
}

TEST_F(HostedButtonTest, OtherMouseButtonsDoNothing) {
  host_.OnResize(80, 24);
  host_.OnMouseDown(2, 5, 5);
  host_.OnMouseUp(2, 5, 5);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HostedButtonTest, AnotherButtonReleasedMeanwhileLeavesThePressAsItIs) {
  host_.OnResize(80, 24);
  host_.OnMouseDown(1, 5, 5);
  host_.OnMouseDown(2, 5, 5);
  host_.OnMouseUp(2, 5, 5);
  EXPECT_EQ(clicks_, 0);
  EXPECT_TRUE(button_.Button().IsPressed());
  host_.OnMouseUp(1, 5, 5);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(HostedButtonTest, ReleasingOutsideOrLosingTheMouseIsNoClick) {
  host_.OnResize(80, 24);
  host_.OnMouseDown(1, 5, 5);
  host_.OnMouseMove(90, 5);
  host_.OnMouseUp(1, 90, 5);
  host_.OnMouseDown(1, 5, 5);
  host_.OnCaptureLost();
  host_.OnMouseUp(1, 5, 5);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HostedButtonTest, EnterClicksWhenItIsPressedAndSpaceWhenItIsReleased) {
  host_.OnKeyDown(13);
  EXPECT_EQ(clicks_, 1);
  host_.OnKeyUp(13);
  EXPECT_EQ(clicks_, 1);
  host_.OnKeyDown(32);
  host_.OnKeyDown(32);  // the keyboard repeats it
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(button_.Button().IsPressed());
  EXPECT_EQ(button_.Button().VisualState(), ctrlButton::State::Sunken);
  host_.OnKeyUp(32);
  EXPECT_EQ(clicks_, 2);
  EXPECT_FALSE(button_.Button().IsPressed());
  EXPECT_EQ(button_.Button().VisualState(), ctrlButton::State::Raised);
}

TEST_F(HostedButtonTest, OtherKeysAndAReleaseWithoutAPressDoNothing) {
  for (const int code : {0, 9, 27, 37, 65}) {
    const auto key = static_cast<std::int16_t>(code);
    host_.OnKeyDown(key);
    host_.OnKeyUp(key);
    EXPECT_FALSE(host_.WantsKey(key)) << code;
  }
  host_.OnKeyUp(32);
  EXPECT_EQ(clicks_, 0);
  EXPECT_TRUE(host_.WantsKey(13));
  EXPECT_TRUE(host_.WantsKey(32));
}

TEST_F(HostedButtonTest, LosingTheFocusUnderTheSpaceBarIsNoClick) {
  host_.OnKeyDown(32);
  host_.OnLostFocus();
  EXPECT_EQ(button_.Button().VisualState(), ctrlButton::State::Raised);
  host_.OnKeyUp(32);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HostedButtonTest, TheMouseTakesAPressOfTheSpaceBarOver) {
  host_.OnResize(80, 24);
  host_.OnKeyDown(32);
  host_.OnMouseDown(1, 5, 5);
  host_.OnKeyUp(32);
  EXPECT_EQ(clicks_, 0);
  host_.OnMouseUp(1, 5, 5);
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
}  // namespace orvik
