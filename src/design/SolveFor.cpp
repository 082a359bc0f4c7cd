#include "design/SolveFor.h"

namespace orvik {
namespace {

using enum SiteQuantity;

struct ModeRow {
  std::string_view item;
  std::array<SiteQuantity, kSolveForSlots> slots;
};

constexpr std::array<ModeRow, kSolveForModes.size()> kModeRows{{
    {"Interactive", {ReuseRate, Efficiency, StorageVolume}},
    {"Efficiency", {StorageVolume, ReuseRate, Efficiency}},
    {"Storage Volume", {Efficiency, ReuseRate, StorageVolume}},
    {"Reuse Rate", {Efficiency, StorageVolume, ReuseRate}},
}};

const ModeRow& RowOf(SolveFor mode) {
  return kModeRows.at(static_cast<std::size_t>(IndexOf(mode)));
}

}  // namespace

SolveFor SolveForOfIndex(int index) {
  const bool isMode = 0 <= index && index < static_cast<int>(kSolveForModes.size());
  return isMode ? static_cast<SolveFor>(index) : SolveFor::None;
}

std::string_view SolveForItem(SolveFor mode) {
  return RowOf(mode).item;
}

SiteQuantity QuantityInSlot(SolveFor mode, int slot) {
  const SolveFor known = mode == SolveFor::None ? SolveFor::Interactive : mode;
  return RowOf(known).slots.at(static_cast<std::size_t>(slot - 1));
}

int SlotOfQuantity(SolveFor mode, SiteQuantity quantity) {
  int slot = 1;
  while (QuantityInSlot(mode, slot) != quantity) ++slot;
  return slot;
}

Field SlotField(int slot) {
  constexpr std::array kSlots{Field::SolveFor1, Field::SolveFor2, Field::SolveFor3};
  return kSlots.at(static_cast<std::size_t>(slot - 1));
}

Field FieldOfQuantity(SolveFor mode, SiteQuantity quantity) {
  return SlotField(SlotOfQuantity(mode, quantity));
}

std::string_view SiteQuantityCaption(SiteQuantity quantity) {
  switch (quantity) {
    case ReuseRate:
      return "Reuse Rate (in/week)";
    case Efficiency:
      return "Efficiency (%)";
    case StorageVolume:
      break;
  }
  return "Storage Volume (ac-ft)";
}

}  // namespace orvik
