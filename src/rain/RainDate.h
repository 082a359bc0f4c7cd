// Dates in rainfall files.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orvik {

// Reads a date written as 2020-12-31, 20201231 (ISO) or 12/31/2020 (US). Nothing for any other
// text, a day that does not exist, or a year of two digits, whose century would be a guess.
std::optional<std::chrono::sys_days> ParseRainDate(std::string_view text);

// "2020-12-31".
std::string IsoDate(std::chrono::sys_days date);

int YearOf(std::chrono::sys_days date);

}  // namespace orvik
