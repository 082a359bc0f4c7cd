// The rainfall record of each climate station.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvik {

struct PondOptions;
struct RainRecord;
struct RainYears;

struct StationSource {
  std::string_view recordOf;    // the neighbour whose record is used; empty: its own
  std::string_view noaaNumber;  // cooperative-observer number(s) of NOAA, or its station id
};

// The source of the climate station of this number. Throws SubscriptError where there is none.
const StationSource& SourceOfStation(std::int16_t station);

// "NOAA daily rainfall 085539 (record of Mayo)".
std::string SourceText(const StationSource& source);

// The first line of a curve file: "<name> - computed by ORVIK from <source>, 1949-2021, 62 usable
// years", followed by ", hold-off 2 days" and ", abstraction 0.1 in" where they are not 0.
std::string CurveTitle(std::string_view name, std::string_view source, const RainRecord& record,
                       const RainYears& years, const PondOptions& options);

}  // namespace orvik
