#include "curves/StationSources.h"

#include <array>

#include "base/RuntimeErrors.h"
#include "pond/PondDays.h"
#include "rain/RainDate.h"
#include "rain/RainYears.h"

namespace orvik {
namespace {

// In the order of the climate stations.
constexpr std::array<StationSource, 25> kSources = {{
    {"", "080211"},                // Apalachicola
    {"", "080611"},                // Belle Glade
    {"", "082158"},                // Daytona Beach
    {"", "083186"},                // Fort Meyers
    {"", "083326 + USW00012816"},  // Gainesville
    {"Mayo", "085539"},            // Grady
    {"", "084091"},                // Homestead
    {"Inverness", "084289"},       // Inglis
    {"", "084358"},                // Jacksonville
    {"", "084570"},                // Key West
    {"", "084797"},                // Lakeland
    {"", "085076"},                // Lisbon
    {"Federal Point", "082915"},   // Marineland
    {"", "085612"},                // Melbourne
    {"", "085663"},                // Miami
    {"", "085895"},                // Moore Haven
    {"", "086240"},                // Niceville
    {"Belle Glade", "080611"},     // NNR2 Canal
    {"DeLand", "082229"},          // Orange City
    {"", "086628 + 086638"},       // Orlando
    {"", "086880"},                // Parrish
    {"", "088758"},                // Tallahassee
    {"", "088788"},                // Tampa
    {"", "089214"},                // Vero Beach
    {"", "089525"},                // West Palm Beach
}};

}  // namespace

const StationSource& SourceOfStation(std::int16_t station) {
  if (station < 1 || station > static_cast<std::int16_t>(kSources.size())) throw SubscriptError();
  return kSources[static_cast<std::size_t>(station) - 1];
}

std::string SourceText(const StationSource& source) {
  std::string text = "NOAA daily rainfall " + std::string(source.NoaaNumber);
  if (!source.RecordOf.empty()) text += " (record of " + std::string(source.RecordOf) + ")";
  return text;
}

std::string CurveTitle(std::string_view name, std::string_view source, const RainRecord& record,
                       const RainYears& years, const PondOptions& options) {
  std::string method;
  if (options.HoldOffDays > 0) method += ", " + HoldOffText(options);
  if (options.AbstractionIn > 0) method += ", " + AbstractionText(options);
  return std::string(name) + " - computed by ORVIK from " + std::string(source) + ", " +
         std::to_string(YearOf(record.First)) + "-" + std::to_string(YearOf(record.Last)) + ", " +
         std::to_string(years.Years.size()) + " usable years" + method;
}

}  // namespace orvik
