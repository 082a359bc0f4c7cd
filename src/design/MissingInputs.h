// What a recalculation still lacks, for a user who does not see which field to fill.
#pragma once

#include <vector>

#include "design/Fields.h"
#include "design/Hints.h"

namespace orvik {

struct Project;

struct MissingInputs {
  std::vector<ListField> lists;   // nothing is chosen
  std::vector<Field> fields;      // empty
  std::vector<Field> notNumbers;  // something else is typed there
  bool point = false;             // all is there but the point on the chart

  bool operator==(const MissingInputs&) const = default;
  bool IsEmpty() const { return lists.empty() && fields.empty() && notNumbers.empty() && !point; }
};

// In the order of the form. `isLoaded`: the station's curves are there, on which a point can lie.
MissingInputs FindMissingInputs(const Project& project, bool isLoaded);

// Names them, each by its caption in the window.
std::vector<Hint> HintsOf(const MissingInputs& missing, const Project& project);

}  // namespace orvik
