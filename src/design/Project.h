// A project as a value: the texts of its fields, and where its design point lies.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "design/DesignPoint.h"
#include "design/Fields.h"
#include "design/SolveFor.h"

namespace orvik {

// The list index of a project without a climate station. Others count from 0 in the order of the
// table of stations.
inline constexpr std::int16_t kNoStation = -1;

// A point as a project file holds it: the texts of its R and V.
struct StoredPoint {
  std::string R;
  std::string V;
  bool operator==(const StoredPoint&) const = default;
};

struct Project {
  std::array<std::string, kFields> texts;  // by Field
  std::int16_t station = kNoStation;
  SolveFor mode = SolveFor::Interactive;
  bool takesPointByHand = true;  // the chart lets the user place the point
  DesignPoint point;
  std::optional<StoredPoint> keptPoint;  // see design/KeptPoint

  const std::string& Text(Field field) const { return texts[static_cast<std::size_t>(field)]; }
  std::string& Text(Field field) { return texts[static_cast<std::size_t>(field)]; }

  // What the field shows, without the blanks around it.
  std::string Trimmed(Field field) const;

  // The mode decides whether the user places the point, unless that is set otherwise.
  void Mode(SolveFor chosen) {
    mode = chosen;
    takesPointByHand = chosen == SolveFor::Interactive;
  }

  // The text of a quantity of the site, without the blanks around it; empty without a mode.
  std::string SiteText(SiteQuantity quantity) const;

  // The station's name; empty where none is chosen.
  std::string StationName() const;

  // The item of the list of modes; empty where none is chosen.
  std::string ModeName() const;
};

}  // namespace orvik
