#include "curves/StationSources.h"

#include <algorithm>
#include <array>

#include "base/RuntimeErrors.h"
#include "pond/PondDays.h"
#include "rain/RainDate.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

// Rows of the table of stations, so that no station is without a source.
constexpr auto kSources = std::to_array<StationSource>({
#define ORVIK_STATION(name, recordOf, record, place, latitude, longitude, side) {recordOf, record},
#include "engine/Stations.def"
#undef ORVIK_STATION
});
static_assert(std::ranges::none_of(kSources, &std::string_view::empty, &StationSource::noaaNumber));

}  // namespace

const StationSource& SourceOfStation(std::int16_t station) {
  if (station < 1 || station > static_cast<std::int16_t>(kSources.size())) throw SubscriptError();
  return kSources[static_cast<std::size_t>(station) - 1];
}

std::string SourceText(const StationSource& source) {
  std::string text = "NOAA daily rainfall " + std::string(source.noaaNumber);
  if (!source.recordOf.empty()) text += " (record of " + std::string(source.recordOf) + ")";
  return text;
}

std::string CurveTitle(std::string_view name, std::string_view source, const RainRecord& record,
                       const RainYears& years, const PondOptions& options) {
  std::string method;
  if (options.holdOffDays > 0) method += ", " + HoldOffText(options);
  if (options.abstractionIn > 0) method += ", " + AbstractionText(options);
  return std::string(name) + " - computed by ORVIK from " + std::string(source) + ", " +
         std::to_string(YearOf(record.first)) + "-" + std::to_string(YearOf(record.last)) + ", " +
         std::to_string(years.kept.size()) + " usable years" + method;
}

}  // namespace orvik
