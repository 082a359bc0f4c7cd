#include "cli/DateOption.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace orvik {
namespace {

constexpr std::string_view kForm = "0000-00-00 00:00:00";  // a 0 stands for any digit

bool IsDigit(char c) {
  return '0' <= c && c <= '9';
}

bool HasTheForm(std::string_view text) {
  return std::ranges::equal(text, kForm, [](char given, char form) {
    return form == '0' ? IsDigit(given) : given == form;
  });
}

int NumberAt(std::string_view text, std::size_t at, std::size_t digits) {
  int number = 0;
  for (const char digit : text.substr(at, digits)) number = number * 10 + (digit - '0');
  return number;
}

bool IsInCalendar(const CalendarDate& date) {
  return std::chrono::year_month_day(std::chrono::year(date.year),
                                     std::chrono::month(static_cast<unsigned>(date.month)),
                                     std::chrono::day(static_cast<unsigned>(date.day)))
      .ok();
}

}  // namespace

std::optional<ClockTime> ParseDateAndTime(std::string_view text) {
  if (!HasTheForm(text)) return std::nullopt;
  const ClockTime time{{NumberAt(text, 0, 4), NumberAt(text, 5, 2), NumberAt(text, 8, 2)},
                       NumberAt(text, 11, 2),
                       NumberAt(text, 14, 2),
                       NumberAt(text, 17, 2)};
  constexpr int kLastHour = 23;
  constexpr int kLast = 59;
  if (!IsInCalendar(time.date) || time.hour > kLastHour || time.minute > kLast ||
      time.second > kLast) {
    return std::nullopt;
  }
  return time;
}

ClockTime DateAndTimeNow() {
  constexpr int kFirstYear = 1900;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return {{local.tm_year + kFirstYear, local.tm_mon + 1, local.tm_mday},
          local.tm_hour,
          local.tm_min,
          local.tm_sec};
}

}  // namespace orvik
