// The four ways to solve: which quantity lies in which slot.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "design/Fields.h"

namespace orvik {

// The mode is the list index of cmbSolveFor.
enum class SolveFor : std::int16_t {
  None = -1,  // nothing is chosen
  Interactive,
  Efficiency,
  StorageVolume,
  ReuseRate,
};

// In the order of the list.
inline constexpr std::array kSolveForModes{SolveFor::Interactive, SolveFor::Efficiency,
                                           SolveFor::StorageVolume, SolveFor::ReuseRate};

// The quantities of the site, in site units.
enum class SiteQuantity : std::uint8_t {
  ReuseRate,      // inches per week over the irrigation area
  Efficiency,     // percent
  StorageVolume,  // acre-feet
};
inline constexpr std::size_t kSiteQuantities = 3;

// The slots of txtSolveFor are numbered from 1. Slots 1 and 2 are given and slot 3 is found; in the
// interactive mode all three are found.
inline constexpr int kSolveForSlots = 3;

// The mode of a list index; None outside the list.
SolveFor SolveForOfIndex(int index);

constexpr std::int16_t IndexOf(SolveFor mode) {
  return static_cast<std::int16_t>(mode);
}

// True for the modes in which two quantities are typed.
constexpr bool IsTypedMode(SolveFor mode) {
  return mode != SolveFor::None && mode != SolveFor::Interactive;
}

// The mode's item in the list ("Storage Volume"). Not for None.
std::string_view SolveForItem(SolveFor mode);

// The quantity in a slot (1...3). Without a mode the slots are those of the interactive mode.
SiteQuantity QuantityInSlot(SolveFor mode, int slot);

// The slot (1...3) that holds the quantity; likewise.
int SlotOfQuantity(SolveFor mode, SiteQuantity quantity);

// The field of a slot (1...3).
Field SlotField(int slot);

// The field that holds the quantity in a mode.
Field FieldOfQuantity(SolveFor mode, SiteQuantity quantity);

// The label of a quantity, with its unit ("Reuse Rate (in/week)").
std::string_view SiteQuantityCaption(SiteQuantity quantity);

}  // namespace orvik
