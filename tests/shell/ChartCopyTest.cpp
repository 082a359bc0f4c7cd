#include "platform/recording/RecordingSurface.h"
#include "shell/ChartCopy.h"
#include "support/FormFixture.h"

namespace orvik {
namespace {

using test::FormFixture;

class ChartCopyTest : public FormFixture {};

// Tampa's curves: E = 50 + 400 (R + 0.05 ln V - 0.15); at V = 3 and R = 0.13: 63.97225.
TEST_F(ChartCopyTest, TheTextHasThePointInTabSeparatedColumns) {
  Choose("cmbClimateStation", "Tampa");
  std::string E;
  ASSERT_TRUE(form_->Chart().SetHotspotUsing_RV("0.13", "3", E));
  EXPECT_EQ(ChartPointText(form_->Chart()), "R (in/day)\tV (in)\tE (%)\r\n0.13\t3\t63.97224\r\n");
}

TEST_F(ChartCopyTest, WithoutAPointTheColumnsAreEmpty) {
  Choose("cmbClimateStation", "Tampa");
  EXPECT_EQ(ChartPointText(form_->Chart()), "R (in/day)\tV (in)\tE (%)\r\n\t\t\r\n");
}

TEST_F(ChartCopyTest, TheClipboardGetsTheChartAsItIsPainted) {
  Choose("cmbClimateStation", "Tampa");
  CopyChart(form_->Chart(), desktop_);
  ASSERT_TRUE(desktop_.Clipboard());
  EXPECT_EQ(desktop_.Clipboard()->pictureSize, form_->Chart().ControlSize());
  RecordingSurface copied;
  desktop_.Clipboard()->paint(copied);
  RecordingSurface painted;
  form_->Chart().Paint(painted);
  EXPECT_EQ(copied.Calls(), painted.Calls());
}

TEST_F(ChartCopyTest, NothingIsCopiedWhileThereAreNoCurves) {
  CopyChart(form_->Chart(), desktop_);
  EXPECT_FALSE(desktop_.Clipboard());
}

TEST_F(ChartCopyTest, AnUnavailableClipboardBeeps) {
  Choose("cmbClimateStation", "Tampa");
  CopyChart(form_->Chart(), desktop_);
  EXPECT_EQ(desktop_.Beeps(), 0);
  desktop_.ClipboardIsFree(false);
  CopyChart(form_->Chart(), desktop_);
  EXPECT_EQ(desktop_.Beeps(), 1);
}

TEST_F(ChartCopyTest, AListenerHearsStationAndPoint) {
  const auto hears = [this](std::string_view name, std::string_view value) {
    const Spoken spoken = SpokenChart(form_->Chart());
    EXPECT_EQ(spoken.name, name);
    EXPECT_EQ(spoken.value, value);
  };
  hears("Design chart", "no climate station");
  Choose("cmbClimateStation", "Tampa");
  hears("Design chart of Tampa", "no design point");
  std::string E;
  ASSERT_TRUE(form_->Chart().SetHotspotUsing_RV("0.13", "3", E));
  hears("Design chart of Tampa", "R 0.13 in/day, V 3 in, E 63.97224 %");
}

}  // namespace
}  // namespace orvik
