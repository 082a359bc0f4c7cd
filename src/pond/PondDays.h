// What a pond is given day by day: the runoff that arrives, and the depth that reuse asks for.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "rain/CalendarYear.h"

namespace orvik {

struct RainYears;

// How rainfall becomes runoff and demand.
struct PondOptions {
  int holdOffDays = 0;       // days without use after each day with rain; 0: use on every day
  double abstractionIn = 0;  // inches lost from each day with rain before it runs off
};

// "hold-off 2 days" and "abstraction 0.1 in", for titles and tables of curves.
std::string HoldOffText(const PondOptions& options);
std::string AbstractionText(const PondOptions& options);

// The days of a simulation, in order: the first kept year as a warm-up, which gives the counted
// days a usual storage to begin with, then all kept years, the first included. Everything is per
// unit of equivalent impervious area.
struct PondDays {
  std::vector<std::chrono::sys_days> dates;  // the warm-up has those of the year that it runs ahead
  std::vector<CalendarYear> years;           // those counted, rising; their days are places below
  std::vector<double> runoff;                // inches on the EIA
  std::vector<double> useShare;  // depth asked for on the day as a multiple of R; 0 while held off
  std::size_t warmUpDays = 0;    // days at the beginning that are simulated and not counted
  double totalRunoff = 0;        // inches, over the counted days
  std::size_t CountedDays() const { return runoff.size() - warmUpDays; }
  // Inches per day, over the counted days.
  double MeanRunoff() const { return totalRunoff / static_cast<double>(CountedDays()); }
};

// Throws Refusal where nothing runs off, or the hold-off leaves no day with use.
PondDays BuildPondDays(const RainYears& years, const PondOptions& options);

}  // namespace orvik
