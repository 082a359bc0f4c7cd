#include "rain/RainDate.h"

#include <charconv>

#include "base/NumberText.h"

namespace orvik {
namespace {

// The number that `least` to `most` digits and nothing else make; -1 for any other text.
int ParseDigits(std::string_view text, std::size_t least, std::size_t most) {
  int value = -1;
  if (text.size() < least || text.size() > most || text.front() == '-') return -1;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return result.ptr == text.data() + text.size() ? value : -1;
}

std::optional<std::chrono::sys_days> MakeDate(int year, int month, int day) {
  if (year < 0 || month < 0 || day < 0) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date);
}

std::optional<std::chrono::sys_days> ParseUsDate(std::string_view text, std::size_t slash) {
  const std::size_t second = text.find('/', slash + 1);
  if (second == std::string_view::npos) return std::nullopt;
  return MakeDate(ParseDigits(text.substr(second + 1), 4, 4),
                  ParseDigits(text.substr(0, slash), 1, 2),
                  ParseDigits(text.substr(slash + 1, second - slash - 1), 1, 2));
}

}  // namespace

std::optional<std::chrono::sys_days> ParseRainDate(std::string_view text) {
  if (const auto slash = text.find('/'); slash != std::string_view::npos) {
    return ParseUsDate(text, slash);
  }
  if (text.size() == 8) {
    return MakeDate(ParseDigits(text.substr(0, 4), 4, 4), ParseDigits(text.substr(4, 2), 2, 2),
                    ParseDigits(text.substr(6), 2, 2));
  }
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  return MakeDate(ParseDigits(text.substr(0, 4), 4, 4), ParseDigits(text.substr(5, 2), 2, 2),
                  ParseDigits(text.substr(8), 2, 2));
}

std::string IsoDate(std::chrono::sys_days date) {
  const std::chrono::year_month_day day(date);
  return WithLeadingZeros(static_cast<int>(day.year()), 4) + "-" +
         WithLeadingZeros(static_cast<int>(static_cast<unsigned>(day.month())), 2) + "-" +
         WithLeadingZeros(static_cast<int>(static_cast<unsigned>(day.day())), 2);
}

int YearOf(std::chrono::sys_days date) {
  return static_cast<int>(std::chrono::year_month_day(date).year());
}

}  // namespace orvik
