// The years of a rainfall record that a simulation can use.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/Refusal.h"
#include "rain/RainRecord.h"

namespace orvik {

// A kept year may miss this many days, which count as dry; a year that misses more is left out.
inline constexpr int kMostMissingDays = 10;
// Fewer years than this say nothing about a climate.
inline constexpr int kFewestYears = 5;
// The mean annual depth of a usable record, inches.
inline constexpr double kLeastAnnualIn = 5;
inline constexpr double kMostAnnualIn = 200;

// A unit, and the mean annual depth of a record that is read in it.
struct MeanInUnit {
  RainUnit Unit;
  double AnnualIn;  // inches
};

// The mean annual depth of the record is that of no climate: its unit is another one.
class ImplausibleRain : public Refusal {
 public:
  ImplausibleRain(const std::string& sentence, std::vector<MeanInUnit> units)
      : Refusal(sentence), units_(std::move(units)) {}

  // The units that would make sense; empty where none does.
  const std::vector<MeanInUnit>& Units() const { return units_; }

 private:
  std::vector<MeanInUnit> units_;
};

// "58.7", from 100 inches on "110": as many digits as a sentence about the climate wants.
std::string RoundedDepth(double inches);

// Calendar years that are nearly complete, one after the other without the years between them.
struct RainYears {
  std::vector<int> Years;            // the kept calendar years, rising
  std::vector<double> Daily;         // inches per day, all days of all kept years; missing days 0
  std::size_t FirstYearDays = 0;     // 365 or 366
  std::vector<int> LeftOutYears;     // years of the record's period that miss too many days
  int MissingDays = 0;               // days of the kept years without a value
  double MeanAnnualIn = 0;           // inches per kept year
  double WettestDayIn = 0;           // inches
  int WettestDays = 0;               // days with exactly this depth
  std::chrono::sys_days WettestDay;  // the first of them
};

// Throws ImplausibleRain for a mean annual depth outside these limits, and Refusal for fewer usable
// years than are needed and a day that is wetter than any ever measured.
RainYears SelectRainYears(const RainRecord& record);

// A sentence for the user where the largest depth looks like a code for a missing value (a depth of
// a heavy storm on two or more days alike), else empty. Such codes pass as rain: 999.9 mm is 39
// inches.
std::string DescribeSuspectedCode(const RainYears& years);

}  // namespace orvik
