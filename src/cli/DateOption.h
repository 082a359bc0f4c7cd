// The date and time of a report: given on the command line, or now.
#pragma once

#include <optional>
#include <string_view>

#include "platform/Desktop.h"

namespace orvik {

// Reads "2026-04-17 09:30:00"; nothing for another form, or for a date or time that does not exist.
std::optional<ClockTime> ParseDateAndTime(std::string_view text);

// Local time.
ClockTime DateAndTimeNow();

}  // namespace orvik
