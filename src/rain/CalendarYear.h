// A calendar year among days that follow one another although years are left out between them.
#pragma once

#include <chrono>
#include <cstddef>

namespace orvik {

struct CalendarYear {
  int year = 0;
  std::size_t firstDay = 0;  // place of January 1 among the days
  std::size_t days = 0;      // 365 or 366
};

// January 1 of the year.
inline std::chrono::sys_days NewYear(int year) {
  return std::chrono::sys_days(std::chrono::year(year) / std::chrono::January / 1);
}

}  // namespace orvik
