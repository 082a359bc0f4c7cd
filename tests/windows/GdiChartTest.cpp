// The whole chart on GDI: pictures against those in golden/, which were taken under Wine with
// Liberation Sans for Arial; and the marks, which must leave no trace.
#include <gtest/gtest.h>
#include <ole2.h>

#include <algorithm>

#include "MemoryScreen.h"
#include "PngFile.h"
#include "chart/ctrlStormwaterReuse.h"
#include "platform/Host.h"
#include "support/GoldenPicture.h"

namespace orvik {
namespace {

using test::MemoryScreen;

constexpr std::int16_t kTampa = 23;
constexpr std::int16_t kSpace = 32;

class ComScope {
 public:
  ComScope() { ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~ComScope() { ::CoUninitialize(); }
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;
};

// --- Pictures ---

struct GoldenChart {
  const char* name;
  std::int16_t station;
  Size size;
  const char* R;  // with V: the hotspot; null for none
  const char* V;
};

class GoldenOnGdi : public testing::TestWithParam<GoldenChart> {
 private:
  ComScope com_;
};

Picture PaintChart(const GoldenChart& golden) {
  ctrlStormwaterReuse chart(ORVIK_DATA);
  chart.SetCurveData(golden.station);
  chart.Resize(golden.size.width, golden.size.height);
  std::string E;
  if (golden.R) chart.SetHotspotUsing_RV(golden.R, golden.V, E);
  const MemoryScreen screen(golden.size);
  GdiSurface surface(screen.Dc());
  chart.Paint(surface);
  return screen.Pixels();
}

TEST_P(GoldenOnGdi, IsPaintedAsItWas) {
  test::ExpectGolden(GetParam().name, PaintChart(GetParam()),
                     {ORVIK_GOLDEN, ORVIK_PICTURES, test::ReadPng, test::WritePng});
}

INSTANTIATE_TEST_SUITE_P(
    Charts, GoldenOnGdi,
    testing::Values(GoldenChart{"tampa-960x640-hotspot", 23, {960, 640}, "0.15", "3"},
                    GoldenChart{"west-palm-beach-480x640", 25, {480, 640}, nullptr, nullptr},
                    GoldenChart{"key-west-320x240-hotspot", 10, {320, 240}, "0.1", "5"},
                    GoldenChart{"nnr2-canal-120x90", 18, {120, 90}, nullptr, nullptr},
                    GoldenChart{"moore-haven-2400x1500-hotspot", 16, {2400, 1500}, "0.12", "4"}),
    [](const auto& test) {
      std::string name = test.param.name;
      std::ranges::replace(name, '-', '_');
      return name;
    });

// --- Marks ---

class ScreenHost final : public Host {
 public:
  explicit ScreenHost(HDC dc) : surface_(dc) {}

  void Invalidate() override {}
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return &surface_; }

 private:
  GdiSurface surface_;
};

class MarksOnGdi : public testing::Test {
 protected:
  void SetUp() override {
    chart_.SetCurveData(kTampa);
    chart_.Resize(kSize.width, kSize.height);
    chart_.PaintScreen(*host_.DrawNow());
    chart_.InteractiveMode(true);
    chart_.AttachHost(&host_);
  }
  void TearDown() override { chart_.AttachHost(nullptr); }

  static constexpr Size kSize{720, 500};
  MemoryScreen screen_{kSize};
  ScreenHost host_{screen_.Dc()};
  ctrlStormwaterReuse chart_{ORVIK_DATA};
};

TEST_F(MarksOnGdi, TheHotspotComesAndGoesWithoutATrace) {
  const Picture before = screen_.Pixels();
  chart_.MouseDown(1, 300, 250);
  chart_.MouseUp();
  EXPECT_NE(screen_.Pixels().pixels, before.pixels);
  chart_.HideHotSpot();
  EXPECT_EQ(screen_.Pixels().pixels, before.pixels);
}

TEST_F(MarksOnGdi, WhatADragDrawsIsWhatAPaintingOfItsEndDraws) {
  chart_.MouseDown(1, 200, 200);
  for (int i = 0; i < 200; ++i) chart_.MouseMove(200 + i, 200 + i % 60);
  chart_.MouseUp();
  const Picture dragged = screen_.Pixels();
  chart_.PaintScreen(*host_.DrawNow());
  EXPECT_EQ(dragged.pixels, screen_.Pixels().pixels);
}

TEST_F(MarksOnGdi, TheHighlightComesAndGoesWithoutATrace) {
  chart_.MouseDown(1, 300, 250);
  chart_.MouseUp();
  const Picture before = screen_.Pixels();
  chart_.KeyDown(kSpace);
  EXPECT_NE(screen_.Pixels().pixels, before.pixels);
  chart_.KeyUp(kSpace);
  EXPECT_EQ(screen_.Pixels().pixels, before.pixels);
}

TEST_F(MarksOnGdi, APaintingTakesTheHighlightAway) {
  chart_.MouseDown(1, 300, 250);
  chart_.MouseUp();
  const Picture before = screen_.Pixels();
  chart_.KeyDown(kSpace);
  chart_.PaintScreen(*host_.DrawNow());
  EXPECT_EQ(screen_.Pixels().pixels, before.pixels);
  chart_.KeyUp(kSpace);  // its release has nothing left to take away
  EXPECT_EQ(screen_.Pixels().pixels, before.pixels);
}

}  // namespace
}  // namespace orvik
