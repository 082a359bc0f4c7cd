#include <gtest/gtest.h>

#include "project/HintLine.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

class HintLineTest : public testing::Test {
 protected:
  static Hint Needs(const std::string& name) { return {HintId::StillNeeded, {name}}; }
  std::string Shown() const { return toolkit_.Text("txtHint"); }

  test::UserToolkit toolkit_;
  std::unique_ptr<Window> window_ = toolkit_.MakeWindow("Form1");
  HintLine line_{toolkit_};
};

TEST_F(HintLineTest, WithoutHintsTheStripIsHidden) {
  EXPECT_FALSE(toolkit_.IsVisible("picHint"));
  line_.Show(HintSource::File, {Needs("a")});
  EXPECT_TRUE(toolkit_.IsVisible("picHint"));
  line_.Clear(HintSource::File);
  EXPECT_FALSE(toolkit_.IsVisible("picHint"));
  EXPECT_EQ(Shown(), "");
}

TEST_F(HintLineTest, HintsStandInTheOrderOfTheirSourcesWheneverTheyCame) {
  line_.Show(HintSource::Recovery, {Needs("e")});
  line_.Show(HintSource::File, {Needs("b"), Needs("c")});
  line_.Show(HintSource::Curves, {Needs("d")});
  line_.Show(HintSource::Save, {Needs("a")});
  EXPECT_EQ(Shown(),
            "Still needed for a result: a.\r\nStill needed for a result: b.\r\n"
            "Still needed for a result: c.\r\nStill needed for a result: d.\r\n"
            "Still needed for a result: e.");
}

TEST_F(HintLineTest, ASourceReplacesItsOwnHintsOnly) {
  line_.Show(HintSource::File, {Needs("b")});
  line_.Show(HintSource::Input, {Needs("a")});
  line_.Show(HintSource::Input, {Needs("other")});
  EXPECT_EQ(Shown(), "Still needed for a result: other.\r\nStill needed for a result: b.");
  EXPECT_EQ(line_.Of(HintSource::File), std::vector{Needs("b")});
}

TEST_F(HintLineTest, SayingTheSameAgainIsNoNews) {
  line_.Show(HintSource::File, {Needs("b")});
  int news = 0;
  toolkit_.Find<TextBox>("txtHint").OnChange = [&news] { ++news; };
  line_.Show(HintSource::File, {Needs("b")});
  EXPECT_EQ(news, 0);
  line_.Show(HintSource::File, {Needs("c")});
  EXPECT_EQ(news, 1);
}

TEST_F(HintLineTest, TheTextCanBeReadAndCopiedButNotChanged) {
  EXPECT_TRUE(toolkit_.Find<TextBox>("txtHint").Locked());
}

}  // namespace
}  // namespace orvik
