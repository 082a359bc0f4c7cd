// The chart behind the window that shows it, as that window tells it of the user.
#include "ChartFixture.h"
#include "chart/HostedChart.h"
#include "platform/recording/RecordingSurface.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

using namespace test;

class HostedChartTest : public ChartFixture {
 protected:
  void SetUp() override {
    Load(LogarithmicCurves());
    chart_.InteractiveMode(true);
  }

  test::UserToolkit toolkit_;
  std::unique_ptr<HostedChart> hosted_ =
      std::make_unique<HostedChart>(toolkit_, "ctrlStormwaterReuse1", chart_);
  HeadlessControlHost& host_ = toolkit_.Find<HeadlessControlHost>("ctrlStormwaterReuse1");
};

TEST_F(HostedChartTest, KeepsTheSizeOfAControlWithoutAWindowUntilItGetsOne) {
  EXPECT_EQ(chart_.Geometry().Frame(), (clsRectangle_Integer{108, 852, 34, 592}));
  hosted_->Place().Move(0, 0, 400, 900);
  EXPECT_EQ(chart_.Geometry().Frame().Right, 380);
}

TEST_F(HostedChartTest, TheMouseDragsTheHotspot) {
  host_.OnMouseDown(2, 480, 434);
  EXPECT_FALSE(chart_.HotSpotVisibile());
  host_.OnMouseDown(1, 480, 434);
  host_.OnMouseMove(500, 440);
  EXPECT_TRUE(chart_.MouseCaptured());
  host_.OnMouseUp(1, 500, 440);
  EXPECT_FALSE(chart_.MouseCaptured());
  EXPECT_EQ(chart_.Point().pixel.x, 500);
  EXPECT_EQ(chart_.Point().pixel.y, 440);
}

TEST_F(HostedChartTest, AnyButtonReleasedEndsTheDrag) {
  host_.OnMouseDown(1, 480, 434);
  host_.OnMouseUp(2, 480, 434);
  EXPECT_FALSE(chart_.MouseCaptured());
}

TEST_F(HostedChartTest, LosingTheMouseEndsTheDrag) {
  host_.OnMouseDown(1, 480, 434);
  host_.OnCaptureLost();
  EXPECT_FALSE(chart_.MouseCaptured());
}

TEST_F(HostedChartTest, KeysAndFocusArrive) {
  host_.OnMouseDown(1, 480, 434);
  host_.OnMouseUp(1, 480, 434);
  host_.OnGotFocus();
  EXPECT_TRUE(chart_.HasFocus());
  host_.OnKeyDown(39);
  host_.OnKeyUp(39);
  EXPECT_EQ(chart_.Point().pixel.x, 481);
  host_.OnLostFocus();
  EXPECT_FALSE(chart_.HasFocus());
  EXPECT_TRUE(host_.WantsKey(39));
  EXPECT_FALSE(host_.WantsKey(9));
}

TEST_F(HostedChartTest, TheWindowIsPaintedByTheChart) {
  RecordingSurface byWindow;
  RecordingSurface byChart;
  host_.OnPaint(byWindow);
  chart_.Paint(byChart);
  EXPECT_EQ(byWindow.Calls(), byChart.Calls());
  EXPECT_FALSE(byWindow.Calls().empty());
}

TEST_F(HostedChartTest, TheChartOutlivesItsWindow) {
  hosted_.reset();
  chart_.MouseDown(1, 480, 434);
  chart_.MouseUp();
  EXPECT_EQ(chart_.Point().pixel.x, 480);
}

}  // namespace
}  // namespace orvik
