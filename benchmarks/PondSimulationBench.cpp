// Many ponds abreast beside a plain loop that follows one pond after the other; both do the same
// 2,400 ponds over 50 years of days.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ctime>

#include "pond/PondDays.h"
#include "pond/PondSimulation.h"

namespace orvik {
namespace {

constexpr std::size_t kDays = 18262;  // 50 years

PondDays FiftyYears() {
  std::uint64_t state = 7;
  const auto random = [&] {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state >> 11U) / 9007199254740992.0;
  };
  PondDays days;
  days.warmUpDays = 0;
  for (std::size_t d = 0; d < kDays; ++d) {
    const double depth = random() < 0.3 ? -0.45 * std::log(1 - random()) : 0;
    days.runoff.push_back(depth);
    days.useShare.push_back(1);
    days.totalRunoff += depth;
  }
  return days;
}

std::vector<PondCell> Ponds() {
  std::vector<PondCell> cells;
  for (int v = 1; v <= 40; ++v) {
    for (int r = 1; r <= 60; ++r) cells.push_back({0.175 * v, 0.01 * r});
  }
  return cells;
}

// The loop that comes to mind first.
std::vector<double> OneAfterTheOther(const PondDays& days, const std::vector<PondCell>& cells) {
  std::vector<double> E;
  for (const PondCell& cell : cells) {
    double storage = 0;
    double used = 0;
    for (const double runoff : days.runoff) {
      storage = std::min(storage + runoff, cell.V);
      const double taken = std::min(storage, cell.R);
      storage -= taken;
      used += taken;
    }
    E.push_back(used / days.totalRunoff * 100);
  }
  return E;
}

template <auto Simulate>
void Measure(benchmark::State& state) {
  const PondDays days = FiftyYears();
  const std::vector<PondCell> cells = Ponds();
  if (SimulateEfficiencies(days, cells) != OneAfterTheOther(days, cells)) {
    state.SkipWithError("the two do not give the same figures");
  }
  const std::clock_t start = std::clock();  // processor time: others may be at work too
  for (auto _ : state) benchmark::DoNotOptimize(Simulate(days, cells));
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  state.counters["ns/cell-day"] = seconds * 1e9 / static_cast<double>(state.iterations()) /
                                  static_cast<double>(cells.size() * kDays);
}

BENCHMARK(Measure<SimulateEfficiencies>)->Name("many ponds abreast")->Unit(benchmark::kMillisecond);
BENCHMARK(Measure<OneAfterTheOther>)->Name("one after the other")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvik

BENCHMARK_MAIN();
