#include <gtest/gtest.h>

#include "controls/ctrlMyTextBox.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

class MyTextBox : public testing::Test {
 protected:
  MyTextBox() {
    box_.OnChange = [this] { ++changes_; };
    box_.OnLeave = [this] { ++leaves_; };
    box_.OnKeyPress = [this](std::int16_t& KeyAscii) {
      ++keys_;
      if (KeyAscii == 'x') KeyAscii = 0;
      if (KeyAscii == 'a') KeyAscii = 'A';
    };
  }

  test::UserToolkit toolkit_;
  ctrlMyTextBox box_{toolkit_, "txtDate"};
  int changes_ = 0;
  int keys_ = 0;
  int leaves_ = 0;
};

TEST_F(MyTextBox, PropertiesAreThoseOfTheInnerTextBox) {
  auto& inner = toolkit_.Find<HeadlessTextBox>("txtDate");
  box_.Text("5");
  box_.ForeColor(kRed);
  box_.BackColor(kButtonFace);
  box_.Locked(true);
  EXPECT_EQ(inner.Text(), "5");
  EXPECT_EQ(inner.ForeColor(), kRed);
  EXPECT_EQ(inner.BackColor(), kButtonFace);
  EXPECT_TRUE(inner.Locked());
  inner.Text("6");
  EXPECT_EQ(box_.Text(), "6");
}

TEST_F(MyTextBox, ChangeFollowsTypingAndAssignment) {
  toolkit_.Type("txtDate", "bc");
  EXPECT_EQ(changes_, 2);
  box_.Text("other");
  EXPECT_EQ(changes_, 3);
}

TEST_F(MyTextBox, TheHostCanReplaceOrSwallowAKey) {
  toolkit_.Type("txtDate", "axb");
  EXPECT_EQ(box_.Text(), "Ab");
}

TEST_F(MyTextBox, WithTheEventSwitchOffNothingReachesTheHostAndKeysPassUnchanged) {
  box_.EventsOn(false);
  toolkit_.Type("txtDate", "axb");
  box_.Text(box_.Text() + "!");
  EXPECT_EQ(changes_, 0);
  EXPECT_EQ(keys_, 0);
  toolkit_.Leave("txtDate");
  EXPECT_EQ(leaves_, 0);
  EXPECT_EQ(box_.Text(), "axb!");
}

TEST_F(MyTextBox, EventsAreOnAtFirst) {
  EXPECT_TRUE(box_.EventsOn());
  toolkit_.Type("txtDate", "b");
  toolkit_.Leave("txtDate");
  EXPECT_EQ(changes_, 1);
  EXPECT_EQ(keys_, 1);
  EXPECT_EQ(leaves_, 1);
}

}  // namespace
}  // namespace orvik
