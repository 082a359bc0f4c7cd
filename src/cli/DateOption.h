// The date and time of a report, given on the command line or told by the system's clock.
#pragma once

#include <optional>
#include <string_view>

#include "platform/Desktop.h"

namespace orvik {

// "2026-04-17 09:30:00"; nothing where it is not that form or not a day and time of the calendar.
std::optional<ClockTime> ParseDateAndTime(std::string_view text);

// Where the user is.
ClockTime DateAndTimeNow();

}  // namespace orvik
