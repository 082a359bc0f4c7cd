// The four ways to solve: which quantity lies in which slot of txtSolveFor.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace orvik {

// The list index of cmbSolveFor; -1 where nothing is chosen.
namespace SolveFor {
inline constexpr std::int16_t kInteractive = 0;
inline constexpr std::int16_t kEfficiency = 1;
inline constexpr std::int16_t kStorageVolume = 2;
inline constexpr std::int16_t kReuseRate = 3;
inline constexpr std::int16_t kModes = 4;
}  // namespace SolveFor

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

bool IsSolveForMode(std::int16_t index);

// True for the modes in which two quantities are typed.
bool IsTypedMode(std::int16_t index);

// The mode's item in the list ("Storage Volume").
std::string_view SolveForItem(std::int16_t mode);

// The quantity in a slot (1...3) of a mode (0...3).
SiteQuantity QuantityInSlot(std::int16_t mode, int slot);

// The slot (1...3) that holds the quantity in a mode (0...3).
int SlotOfQuantity(std::int16_t mode, SiteQuantity quantity);

// The label of a quantity, with its unit ("Reuse Rate (in/week)").
std::string_view SiteQuantityCaption(SiteQuantity quantity);

}  // namespace orvik
