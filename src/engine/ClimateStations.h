// The fixed table of climate stations (engine/Stations.def).
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvik {

// How many stations there are. They are numbered from 1; 0 means no station.
std::int16_t NumRainfallStations();

// The name of a station, which is also the base name of its curve file. Throws SubscriptError
// outside 1...NumRainfallStations().
std::string_view ClimateStationName(std::int16_t index);

// The number of the station of this name (case of ASCII letters and blanks around it do not
// matter), if there is one.
std::optional<std::int16_t> FindClimateStation(std::string_view name);

}  // namespace orvik
