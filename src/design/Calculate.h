// The calculation of a project: validation in its fixed order, then the answer of the design curves
// in the chosen solve-for mode. From values to values; nothing else is asked and nothing kept.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "design/Project.h"

namespace orvik {

class FramedCurves;

// What a calculation writes.
struct Result {
  // By Field; nothing where the field is left as it is.
  std::array<std::optional<std::string>, kFields> texts;
  // In the order in which they are shown, each in the place of the one before: the last one stays.
  // MessageId::None takes the one before it away.
  std::vector<Message> messages;
  DesignPoint point;

  void Write(Field field, std::string text) {
    texts[static_cast<std::size_t>(field)] = std::move(text);
  }

  // The message that stays, MessageId::None where there is none.
  Message Shown() const { return messages.empty() ? Message{} : messages.back(); }
};

// Recalculates everything. The first fault becomes a message and ends the run; fields filled before
// it keep their new texts. `curves` is null where none are loaded. Throws nothing but what memory
// does.
Result Calculate(const Project& project, const FramedCurves* curves);

// The point has been placed or moved: its R, E and V for the fields and, in the interactive mode,
// where the EIA and the irrigation area are known, the site values too.
Result FollowPoint(const Project& project);

// The project with what the result wrote.
Project WithResult(Project project, const Result& result);

// True when a recalculation has all that it needs. `isLoaded`: the station's curves are there.
bool IsDataDefined(const Project& project, bool isLoaded);

// The EIA where both the basin area and the runoff coefficient are numbers. No range check: the
// user may be in the middle of typing. Throws OverflowError where single precision cannot hold it.
std::optional<std::string> EquivalentImperviousArea(const Project& project);

}  // namespace orvik
