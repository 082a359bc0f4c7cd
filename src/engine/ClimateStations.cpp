#include "engine/ClimateStations.h"

#include <algorithm>
#include <array>

#include "base/RuntimeErrors.h"
#include "base/Text.h"

namespace orvik {
namespace {

constexpr auto kStations = std::to_array<std::string_view>({
#define ORVIK_STATION(name, recordOf, record, place, latitude, longitude, side) name,
#include "engine/Stations.def"
#undef ORVIK_STATION
});

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
