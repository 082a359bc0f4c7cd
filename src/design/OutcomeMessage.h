// The messages that show outcomes to the user.
#pragma once

#include <cstdint>
#include <string_view>

#include "design/Messages.h"

namespace orvik {

enum class LoadOutcome : std::uint8_t;
struct Outcome;

// `efficiency` is the E that was asked for, as the user wrote it.
Message MessageOf(const Outcome& outcome, std::string_view efficiency = {});

// Why the curves of the station of this number could not be loaded from the folder;
// MessageId::None where they were, and for a file that is damaged: the window is silent there.
Message MessageOf(LoadOutcome outcome, std::string_view folder, std::int16_t station);

}  // namespace orvik
