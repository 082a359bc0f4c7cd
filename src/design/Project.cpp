#include "design/Project.h"

#include "base/Text.h"
#include "engine/ClimateStations.h"

namespace orvik {

std::string Project::Trimmed(Field field) const {
  return std::string(Trim(Text(field)));
}

std::string Project::SiteText(SiteQuantity quantity) const {
  if (mode == SolveFor::None) return {};
  return Trimmed(FieldOfQuantity(mode, quantity));
}

std::string Project::StationName() const {
  const bool isStation = 0 <= station && station < NumRainfallStations();
  if (!isStation) return {};
  return std::string(ClimateStationName(static_cast<std::int16_t>(station + 1)));
}

std::string Project::ModeName() const {
  return mode == SolveFor::None ? std::string() : std::string(SolveForItem(mode));
}

}  // namespace orvik
