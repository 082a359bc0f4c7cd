#include "engine/ClimateStations.h"

#include <algorithm>
#include <array>

#include "base/RuntimeErrors.h"
#include "base/Text.h"

namespace orvik {
namespace {

constexpr std::array<std::string_view, 25> kStations = {
    "Apalachicola", "Belle Glade", "Daytona Beach", "Fort Meyers",  "Gainesville",
    "Grady",        "Homestead",   "Inglis",        "Jacksonville", "Key West",
    "Lakeland",     "Lisbon",      "Marineland",    "Melbourne",    "Miami",
    "Moore Haven",  "Niceville",   "NNR2 Canal",    "Orange City",  "Orlando",
    "Parrish",      "Tallahassee", "Tampa",         "Vero Beach",   "West Palm Beach"};

}  // namespace

std::int16_t NumRainfallStations() {
  return static_cast<std::int16_t>(kStations.size());
}

std::string_view ClimateStationName(std::int16_t index) {
  if (index < 1 || index > NumRainfallStations()) throw SubscriptError();
  return kStations[static_cast<std::size_t>(index) - 1];
}

std::optional<std::int16_t> FindClimateStation(std::string_view name) {
  name = Trim(name);
  const auto found = std::ranges::find_if(
      kStations, [&](std::string_view s) { return EqualIgnoringCase(s, name); });
  if (found == kStations.end()) return std::nullopt;
  return static_cast<std::int16_t>(found - kStations.begin() + 1);
}

}  // namespace orvik
