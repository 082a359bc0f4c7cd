#include <gtest/gtest.h>

#include "controls/ctrlErrorMessageBar.h"
#include "support/AnsweringDesktop.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

class ErrorMessageBar : public testing::Test {
 protected:
  ErrorMessageBar() {
    bar_.OnMessageChange = [this] { ++events_; };
  }

  test::UserToolkit toolkit_;
  test::AnsweringDesktop desktop_;
  ctrlErrorMessageBar bar_{toolkit_, desktop_, "txtErrMsg"};
  int events_ = 0;
};

TEST_F(ErrorMessageBar, IsSilentEmptyAndReadyToBeepAtFirst) {
  EXPECT_FALSE(bar_.IsSet());
  EXPECT_TRUE(bar_.BeepOn());
  EXPECT_EQ(bar_.ExtendedHelpTopic(), 0);
  EXPECT_TRUE(toolkit_.Find<HeadlessTextBox>("txtErrMsg").Locked());
}

TEST_F(ErrorMessageBar, ShowsTheMessageWithoutBlanksAroundIt) {
  bar_.SetErrMsg("  Too much.  ", 12);
  EXPECT_EQ(toolkit_.Text("txtErrMsg"), "Too much.");
  EXPECT_TRUE(bar_.IsSet());
  EXPECT_EQ(bar_.ExtendedHelpTopic(), 12);
  EXPECT_EQ(desktop_.Beeps(), 1);
  EXPECT_EQ(events_, 1);
}

TEST_F(ErrorMessageBar, AMessageOfBlanksActsAsClearAndForgetsTheHelpTopic) {
  bar_.SetErrMsg("Too much.", 12);
  bar_.SetErrMsg("   ", 7);
  EXPECT_EQ(bar_.Text(), "");
  EXPECT_FALSE(bar_.IsSet());
  EXPECT_EQ(bar_.ExtendedHelpTopic(), 0);
  EXPECT_EQ(desktop_.Beeps(), 1);
  EXPECT_EQ(events_, 2);
}

TEST_F(ErrorMessageBar, TheSameMessageTwiceBeepsTwice) {
  bar_.SetErrMsg("Too much.", 1);
  bar_.SetErrMsg("Too much.", 1);
  EXPECT_EQ(desktop_.Beeps(), 2);
  EXPECT_EQ(events_, 2);
}

TEST_F(ErrorMessageBar, MakesNoSoundWithTheBeepOff) {
  bar_.BeepOn(false);
  bar_.SetErrMsg("Too much.", 1);
  EXPECT_EQ(desktop_.Beeps(), 0);
  EXPECT_TRUE(bar_.IsSet());
}

TEST_F(ErrorMessageBar, ClearRemovesTheMessageWithoutABeep) {
  bar_.SetErrMsg("Too much.", 1);
  bar_.Clear();
  EXPECT_EQ(bar_.Text(), "");
  EXPECT_FALSE(bar_.IsSet());
  EXPECT_EQ(bar_.ExtendedHelpTopic(), 0);
  EXPECT_EQ(desktop_.Beeps(), 1);
  EXPECT_EQ(events_, 2);
}

}  // namespace
}  // namespace orvik
