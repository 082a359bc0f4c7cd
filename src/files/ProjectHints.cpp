#include "files/ProjectHints.h"

#include <optional>

#include "base/PrintableText.h"
#include "base/Text.h"
#include "base/TextFault.h"
#include "design/FileHints.h"
#include "engine/ClimateStations.h"
#include "files/ProjectText.h"

namespace orvik {
namespace {

// Why the file could not be read as a project.
std::optional<Hint> WhyUnreadable(const ProjectReading& reading, const std::string& path) {
  if (auto hint = HintOf(FindTextFault(path), path)) return hint;
  if (reading.refusal.id != MessageId::None) {
    return Hint{HintId::ProjectFirstLine, {path, Quotable(reading.firstLine)}};
  }
  if (reading.badLine) {
    return Hint{HintId::ProjectLineIsNoNumber, {std::to_string(*reading.badLine), path}};
  }
  if (reading.endsEarly) {
    return Hint{HintId::ProjectEndsEarly, {path, std::to_string(reading.lines)}};
  }
  return std::nullopt;
}

bool IsStation(std::int16_t index) {
  return 0 <= index && index < NumRainfallStations();
}

// The number decides; a name that belongs to another station, or to none, may be the right one.
std::optional<Hint> StationContradiction(const ProjectReading& reading) {
  const std::string_view name = Trim(reading.stationName);
  if (!reading.station || name.empty()) return std::nullopt;
  const std::string number = std::to_string(*reading.station);
  if (!IsStation(*reading.station)) {
    return Hint{HintId::StationNumberUnknown, {number, Quotable(name)}};
  }
  const auto station = static_cast<std::int16_t>(*reading.station + 1);
  const std::string used(ClimateStationName(station));
  if (EqualIgnoringCase(name, used)) return std::nullopt;
  return Hint{HintId::StationContradiction, {number, used, Quotable(name), used}};
}

}  // namespace

std::vector<Hint> HintsOf(const ProjectReading& reading, const std::string& path) {
  std::vector<Hint> hints;
  const auto add = [&](std::optional<Hint> hint) {
    if (hint) hints.push_back(*std::move(hint));
  };
  if (!path.empty()) {
    if (!reading.isWhole) add(WhyUnreadable(reading, path));
    if (reading.isWhole && reading.endsWithinLine)
      hints.push_back({HintId::PossiblyCutShort, {path}});
    if (reading.blockEndsEarly) hints.push_back({HintId::BlockEndsEarly, {path}});
    if (reading.lineFeedLine && reading.refusal.id == MessageId::None) {
      hints.push_back({HintId::LoneLineFeed, {std::to_string(*reading.lineFeedLine), path}});
    }
  }
  add(StationContradiction(reading));
  return hints;
}

}  // namespace orvik
