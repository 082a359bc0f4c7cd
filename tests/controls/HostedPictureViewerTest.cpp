#include <gtest/gtest.h>

#include "controls/HostedPictureViewer.h"
#include "support/UserToolkit.h"

namespace orvik {
namespace {

// A picture of 200 x 100 in a window of 100 x 100.
class HostedPictureViewerTest : public testing::Test {
 protected:
  HostedPictureViewerTest() {
    host_.OnResize(100, 100);
    hosted_.Viewer().Show({{200, 100}, std::vector<std::uint32_t>(20000)});
  }

  double Zoom() { return hosted_.Viewer().View().Zoom(); }
  int Left() { return hosted_.Viewer().View().Place().left; }

  test::UserToolkit toolkit_;
  HostedPictureViewer hosted_{toolkit_, "ctrlPictureViewer1", "Map"};
  HeadlessControlHost& host_ = toolkit_.Find<HeadlessControlHost>("ctrlPictureViewer1");
};

TEST_F(HostedPictureViewerTest, WheelKeysAndDoubleClickArrive) {
  host_.OnMouseWheel(1, 50, 50);
  EXPECT_EQ(Zoom(), 0.625);
  host_.OnKeyDown(0xBB);
  EXPECT_EQ(Zoom(), 0.78125);
  host_.OnDoubleClick();
  EXPECT_EQ(Zoom(), 0.5);
  EXPECT_TRUE(host_.WantsKey(0x25));
  EXPECT_FALSE(host_.WantsKey(27));
}

TEST_F(HostedPictureViewerTest, TheLeftButtonDragsAndNoOther) {
  host_.OnMouseWheel(4, 50, 50);
  const int before = Left();
  host_.OnMouseDown(2, 50, 50);
  host_.OnMouseMove(60, 50);
  EXPECT_EQ(Left(), before);
  host_.OnMouseDown(1, 50, 50);
  host_.OnMouseMove(60, 50);
  EXPECT_EQ(Left(), before + 10);
  host_.OnMouseUp(2, 60, 50);
  host_.OnMouseMove(65, 50);
  EXPECT_EQ(Left(), before + 15);
  host_.OnMouseUp(1, 65, 50);
  host_.OnMouseMove(80, 50);
  EXPECT_EQ(Left(), before + 15);
  EXPECT_EQ(host_.Pointer(), PointerShape::Hand);
}

TEST_F(HostedPictureViewerTest, AScreenReaderHearsItsTitleAndItsZoom) {
  EXPECT_EQ(host_.Announcement().name, "Map");
  EXPECT_EQ(host_.Announcement().value, "zoom 50 %");
  EXPECT_TRUE(host_.Announcement().isPicture);
  hosted_.Viewer().Show({});
  EXPECT_EQ(host_.Announcement().value, "no picture");
}

}  // namespace
}  // namespace orvik
