// A chart under the user's hand, with a log of its events, requests and drawing.
//
// Curves: R = A - 0.05 ln V with A = 0.15, 0.20, 0.25 for E = 50, 70, 90 (see CurveFileText.h).
// Control of 960 x 640: usable 920 x 600; height shares 0.0101 : 0.4 : 0.02 of 0.4301, so the frame
// is 558.01 high and 744.02 wide and lies at Left 108, Right 852, Top 34, Bottom 592. A pixel is
// 7 / 744 inches wide and 0.4 / 558 in/day high.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "ChartFixture.h"
#include "support/RecordingHost.h"

namespace orvik::test {

inline constexpr std::int16_t kLeft = 1;  // mouse buttons
inline constexpr std::int16_t kRight = 2;
inline constexpr std::int16_t kMiddle = 4;
inline constexpr std::int16_t kSpace = 32;  // keys
inline constexpr std::int16_t kArrowLeft = 37;
inline constexpr std::int16_t kArrowUp = 38;
inline constexpr std::int16_t kArrowRight = 39;
inline constexpr std::int16_t kArrowDown = 40;

class InteractiveFixture : public ChartFixture {
 protected:
  void SetUp() override {
    Load(LogarithmicCurves());
    chart_.InteractiveMode(true);
    chart_.AttachHost(&host_);
    chart_.OnChange = [this] { host_.Log("Change"); };
    chart_.OnMousePressed = [this] { host_.Log("MousePressed"); };
    chart_.OnMouseReleased = [this] { host_.Log("MouseReleased"); };
  }

  void PressAndRelease(double x, double y) {
    chart_.MouseDown(kLeft, x, y);
    chart_.MouseUp();
    host_.Take();
  }

  void ExpectPixel(int X, int Y) {
    EXPECT_EQ(chart_.Point().pixel.x, X);
    EXPECT_EQ(chart_.Point().pixel.y, Y);
  }

  RecordingHost host_;
};

}  // namespace orvik::test
