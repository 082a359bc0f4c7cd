#include <gtest/gtest.h>

#include "controls/HostedButton.h"
#include "platform/headless/HeadlessToolkit.h"

namespace orvik {
namespace {

class HostedButtonTest : public testing::Test {
 protected:
  HeadlessToolkit toolkit_;
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
  host_.OnMouseUp(5, 5);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HostedButtonTest, ReleasingOutsideOrLosingTheMouseIsNoClick) {
  host_.OnResize(80, 24);
  host_.OnMouseDown(1, 5, 5);
  host_.OnMouseMove(90, 5);
  host_.OnMouseUp(90, 5);
  host_.OnMouseDown(1, 5, 5);
  host_.OnCaptureLost();
  host_.OnMouseUp(5, 5);
  EXPECT_EQ(clicks_, 0);
}

}  // namespace
}  // namespace orvik
