// The years of a rainfall record that a simulation can use.
#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "base/Refusal.h"
#include "rain/CalendarYear.h"
#include "rain/RainRecord.h"

namespace orvik {

// A year with no more missing days than this is kept, and they count as dry; other years are left
// out.
inline constexpr int kMostMissingDays = 10;
// Fewer years than this are no sample of a climate.
inline constexpr int kFewestYears = 5;
// The mean annual depth of a usable record, inches.
inline constexpr double kLeastAnnualIn = 5;
inline constexpr double kMostAnnualIn = 200;

// A unit, and the mean annual depth of the record when it is read in this unit.
struct MeanInUnit {
  RainUnit unit;
  double annualIn;  // inches
};

// The mean annual depth is implausible: the record is probably in another unit.
class ImplausibleRain : public Refusal {
 public:
  ImplausibleRain(const std::string& sentence, std::vector<MeanInUnit> units)
      : Refusal(sentence), units_(std::move(units)) {}

  // The units in which the depth would be plausible; empty where it is in none.
  const std::vector<MeanInUnit>& Units() const { return units_; }

 private:
  std::vector<MeanInUnit> units_;
};

// "58.7", from 100 inches on "110": enough digits for a sentence about the climate.
std::string RoundedDepth(double inches);

// The nearly complete calendar years of a record, one after the other, without the years left out.
struct RainYears {
  std::vector<CalendarYear> kept;  // rising; their days are places in `daily` and in `dates`
  std::vector<double> daily;       // inches on each day of the kept years; 0 on missing days
  std::vector<std::chrono::sys_days> dates;  // of the same days
  std::vector<int> leftOutYears;             // years of the record with too many missing days
  int missingDays = 0;                       // days without a value in the kept years
  double meanAnnualIn = 0;                   // inches per kept year
  double wettestDayIn = 0;                   // inches
  int wettestDays = 0;                       // days with exactly this depth
  std::chrono::sys_days wettestDay;          // the first of them
};

// Throws ImplausibleRain for a mean annual depth outside the limits above, and Refusal for too few
// usable years or for a day wetter than any ever measured.
RainYears SelectRainYears(const RainRecord& record);

// A warning for the user where the largest depth looks like a code for a missing value (the depth
// of a heavy storm, on two or more days exactly alike), else empty. Such codes are within what a
// day can bring: 999.9 mm is 39 inches.
std::string DescribeSuspectedCode(const RainYears& years);

}  // namespace orvik
