#include "pond/PondSimulation.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "pond/PondDays.h"

namespace orvik {
namespace {

// Ponds in a block: its four arrays (4 KB) stay in the first-level cache while all days pass over
// them.
constexpr std::size_t kBlockCells = 128;

struct alignas(64) Block {
  std::array<double, kBlockCells> V{};
  std::array<double, kBlockCells> R{};
  std::array<double, kBlockCells> storage{};
  std::array<double, kBlockCells> used{};
};

// Days in the outer loop, ponds in the inner one: the ponds of one day do not depend on each other,
// so the compiler can vectorise over them. No branches; the smaller of two is written in the form
// that becomes one minimum instruction.
void RunDays(Block& block, const PondDays& days, std::size_t first, std::size_t last) {
  for (std::size_t d = first; d < last; ++d) {
    const double runoff = days.runoff[d];
    const double share = days.useShare[d];
    for (std::size_t i = 0; i < kBlockCells; ++i) {
      const double filled = block.storage[i] + runoff;
      const double kept = filled < block.V[i] ? filled : block.V[i];
      const double asked = block.R[i] * share;
      const double taken = kept < asked ? kept : asked;
      block.storage[i] = kept - taken;
      block.used[i] += taken;
    }
  }
}

Block FillBlock(const std::vector<PondCell>& cells, std::size_t first, std::size_t count) {
  Block block;
  for (std::size_t i = 0; i < count; ++i) {
    block.V[i] = cells[first + i].V;
    block.R[i] = cells[first + i].R;
  }
  return block;
}

}  // namespace

PondBalance SimulatePond(const PondDays& days, const PondCell& cell) {
  PondBalance balance;
  double storage = 0;
  for (std::size_t d = 0; d < days.runoff.size(); ++d) {
    if (d == days.warmUpDays) balance = {.storageBefore = storage};
    const double filled = storage + days.runoff[d];
    const double kept = std::min(filled, cell.V);
    const double taken = std::min(kept, cell.R * days.useShare[d]);
    storage = kept - taken;
    balance.runoff += days.runoff[d];
    balance.used += taken;
    balance.spilled += filled - kept;
  }
  balance.storageAfter = storage;
  return balance;
}

std::vector<double> SimulateEfficiencies(const PondDays& days, const std::vector<PondCell>& cells) {
  std::vector<double> E(cells.size());
  for (std::size_t first = 0; first < cells.size(); first += kBlockCells) {
    const std::size_t count = std::min(kBlockCells, cells.size() - first);
    Block block = FillBlock(cells, first, count);
    RunDays(block, days, 0, days.warmUpDays);
    block.used.fill(0);
    RunDays(block, days, days.warmUpDays, days.runoff.size());
    for (std::size_t i = 0; i < count; ++i) {
      E[first + i] = block.used[i] / days.totalRunoff * 100;
    }
  }
  return E;
}

}  // namespace orvik
