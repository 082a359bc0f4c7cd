#include "project/SolveForMode.h"

namespace orvik {
namespace {

using enum SiteQuantity;

struct ModeRow {
  std::string_view item;
  std::array<SiteQuantity, kSolveForSlots> slots;
};

constexpr std::array<ModeRow, SolveFor::kModes> kRows{{
    {"Interactive", {ReuseRate, Efficiency, StorageVolume}},
    {"Efficiency", {StorageVolume, ReuseRate, Efficiency}},
    {"Storage Volume", {Efficiency, ReuseRate, StorageVolume}},
    {"Reuse Rate", {Efficiency, StorageVolume, ReuseRate}},
}};

const ModeRow& Row(std::int16_t mode) {
  return kRows.at(static_cast<std::size_t>(mode));
}

}  // namespace

bool IsSolveForMode(std::int16_t index) {
  return index >= 0 && index < SolveFor::kModes;
}

bool IsTypedMode(std::int16_t index) {
  return IsSolveForMode(index) && index != SolveFor::kInteractive;
}

std::string_view SolveForItem(std::int16_t mode) {
  return Row(mode).item;
}

SiteQuantity QuantityInSlot(std::int16_t mode, int slot) {
  return Row(mode).slots.at(static_cast<std::size_t>(slot - 1));
}

int SlotOfQuantity(std::int16_t mode, SiteQuantity quantity) {
  int slot = 1;
  while (QuantityInSlot(mode, slot) != quantity) ++slot;
  return slot;
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
