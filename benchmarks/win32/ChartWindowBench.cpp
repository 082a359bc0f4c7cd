// A full painting of the 960 x 640 chart's window and one move of the mouse over it (find the
// point, solve, erase, draw, tell the form), beside an empty BitBlt of the same size to the same
// window. The limits are 10 ms and 1 ms. Needs a screen (scripts/with-display).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "chart/HostedChart.h"
#include "chart/ctrlStormwaterReuse.h"
#include "platform/win32/NativeControlHost.h"

namespace orvik {
namespace {

using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int kWidth = 960;
constexpr int kHeight = 640;
constexpr std::int16_t kTampa = 23;

// A toolkit that makes one window, of the chart.
class OneWindow final : public Toolkit {
 public:
  explicit OneWindow(HWND parent) : parent_(parent) {}

  HWND handle = nullptr;

  std::unique_ptr<ControlHost> MakeControlHost(std::string_view) override {
    auto host = std::make_unique<NativeControlHost>(::GetModuleHandleW(nullptr), parent_);
    handle = host->Handle();
    return host;
  }
  void Design(const FormDesign&) override {}
  std::unique_ptr<Toolkit> ForAnotherWindow() const override { return nullptr; }
  std::unique_ptr<Window> MakeWindow(std::string_view) override { return nullptr; }
  std::unique_ptr<TextBox> MakeTextBox(std::string_view) override { return nullptr; }
  std::unique_ptr<ComboBox> MakeComboBox(std::string_view) override { return nullptr; }
  std::unique_ptr<Label> MakeLabel(std::string_view) override { return nullptr; }
  std::unique_ptr<Panel> MakePanel(std::string_view) override { return nullptr; }
  std::unique_ptr<OptionButton> MakeOptionButton(std::string_view) override { return nullptr; }
  std::unique_ptr<MenuItem> MakeMenuItem(std::string_view) override { return nullptr; }
  std::unique_ptr<Timer> MakeTimer() override { return nullptr; }

 private:
  HWND parent_;
};

// The median time of one run.
Microseconds Measure(int runs, const std::function<void(int run)>& body) {
  std::vector<Microseconds> times;
  for (int run = 0; run < runs; ++run) {
    const auto start = std::chrono::steady_clock::now();
    body(run);
    ::GdiFlush();
    times.emplace_back(std::chrono::steady_clock::now() - start);
  }
  std::ranges::nth_element(times, times.begin() + runs / 2);
  return times[static_cast<std::size_t>(runs / 2)];
}

void Print(const char* name, Microseconds time, Microseconds peer,
           std::optional<Microseconds> limit) {
  std::printf("%-28s %10.1f us %8.2f x", name, time.count(), time / peer);
  if (limit) std::printf("   limit %6.0f us", limit->count());
  std::printf("\n");
}

Microseconds EmptyCopy(HWND window) {
  const WindowDc screen(window);
  const MemoryDc memory(::CreateCompatibleDC(screen.Get()));
  const GdiObject<HBITMAP> picture(::CreateCompatibleBitmap(screen.Get(), kWidth, kHeight));
  const Selection selected(memory.get(), picture.get());
  return Measure(500, [&](int) {
    ::BitBlt(screen.Get(), 0, 0, kWidth, kHeight, memory.get(), 0, 0, SRCCOPY);
  });
}

Microseconds Painting(HWND window) {
  return Measure(500, [&](int) {
    ::InvalidateRect(window, nullptr, FALSE);
    ::UpdateWindow(window);
  });
}

Microseconds MouseMove(HWND window) {
  const auto at = [](int x, int y) { return MAKELPARAM(x, y); };
  ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at(300, 400));
  const Microseconds time = Measure(5000, [&](int run) {
    const int way = run * 7 % 500;
    ::SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, at(300 + way, 300 + way / 4));
  });
  ::SendMessageW(window, WM_LBUTTONUP, 0, at(300, 400));
  return time;
}

void Run() {
  const HWND parent =
      ::CreateWindowExW(0, L"STATIC", L"Benchmark", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 1100,
                        800, nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr);
  ctrlStormwaterReuse chart(ORVIK_DATA);
  chart.SetCurveData(kTampa);
  chart.InteractiveMode(true);
  OneWindow toolkit(parent);
  HostedChart hosted(toolkit, "chart", chart);
  hosted.Place().Move(0, 0, kWidth, kHeight);
  std::string E;
  chart.SetHotspotUsing_RV("0.15", "3", E);
  float told = 0;
  chart.OnChange = [&] { chart.GetE(told); };

  const Microseconds peer = EmptyCopy(toolkit.handle);
  Print("Empty BitBlt, 960 x 640", peer, peer, std::nullopt);
  Print("Full painting, 960 x 640", Painting(toolkit.handle), peer, Microseconds(10000));
  Print("One move of the mouse", MouseMove(toolkit.handle), peer, Microseconds(1000));
  ::DestroyWindow(parent);
}

}  // namespace
}  // namespace orvik

int main() {
  orvik::Run();
}
