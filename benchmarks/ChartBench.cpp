// A full painting of the 960 x 640 chart and one move of the mouse over it, both on a screen in
// memory, beside an empty copy of a picture of the same size. The limits are 10 ms and 1 ms.
#include <benchmark/benchmark.h>

#include "chart/ctrlStormwaterReuse.h"
#include "platform/Host.h"
#include "platform/cairo/CairoImageSurface.h"
#include "platform/headless/HeadlessDesktop.h"

namespace orvik {
namespace {

constexpr Size kSize{960, 640};
constexpr std::int16_t kTampa = 23;
constexpr std::int16_t kLeftButton = 1;

// A window over a screen in memory.
class MemoryHost final : public Host {
 public:
  void Invalidate() override {}
  void CaptureMouse() override {}
  void ReleaseMouse() override {}
  Surface* DrawNow() override { return &screen_; }

 private:
  CairoImageSurface screen_{kSize};
};

struct Chart {
  Chart() { control.SetCurveData(kTampa); }

  HeadlessDesktop desktop;
  ctrlStormwaterReuse control{ORVIK_DATA};
};

void EmptyCopy(benchmark::State& state) {
  CairoImageSurface screen(kSize);
  const Picture picture = CairoImageSurface(kSize).Pixels();
  for ([[maybe_unused]] auto _ : state)
    screen.CopyPicture(picture, {0, 0, kSize.width, kSize.height});
}
BENCHMARK(EmptyCopy)->Unit(benchmark::kMicrosecond);

void FullPainting(benchmark::State& state) {
  Chart chart;
  std::string E;
  chart.control.SetHotspotUsing_RV("0.15", "3", E);
  CairoImageSurface screen(kSize);
  for ([[maybe_unused]] auto _ : state) chart.control.Paint(screen);
}
BENCHMARK(FullPainting)->Unit(benchmark::kMicrosecond);

// Locate, solve, erase, draw, tell the form.
void MouseMove(benchmark::State& state) {
  MemoryHost host;
  Chart chart;
  chart.control.AttachHost(&host);
  chart.control.InteractiveMode(true);
  int changes = 0;
  chart.control.OnChange = [&] { ++changes; };
  chart.control.MouseDown(kLeftButton, 300, 400);
  int x = 0;
  for ([[maybe_unused]] auto _ : state) {
    x = (x + 7) % 500;
    chart.control.MouseMove(300 + x, 300 + x * 0.25);
  }
  benchmark::DoNotOptimize(changes);
  chart.control.AttachHost(nullptr);
}
BENCHMARK(MouseMove)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvik

BENCHMARK_MAIN();
