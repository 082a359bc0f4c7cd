// A daily rainfall record read from a comma-separated file.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "rain/RainUnit.h"

namespace orvik {

// One day with a value.
struct RainDay {
  std::chrono::sys_days date;
  double depthIn = 0;  // inches
};

// How many rows were not used as they are, and the line of the first (line 1 is the header).
struct RainFindings {
  int rows = 0;         // rows with a date
  int missing = 0;      // rows without a depth
  int duplicate = 0;    // rows that repeat a date; the first value counts
  int conflicting = 0;  // of these: the depth differs from the first one
  int negative = 0;     // rows with a depth below zero, which counts as missing
  int trace = 0;        // rows with "T", too little to measure, which counts as 0
  int gapDays = 0;      // days without a row, between the first and the last date
  int gaps = 0;         // runs of such days
  int firstConflictingLine = 0;
  int firstNegativeLine = 0;
};

struct RainRecord {
  RainUnit unit = RainUnit::Inches;
  std::chrono::sys_days first;  // the earliest and the latest date
  std::chrono::sys_days last;
  std::vector<RainDay> days;  // days with a value, by rising date, each date once
  RainFindings findings;
};

// Names of the columns to read. For an empty one the usual names are tried ("date";
// "precipitation_in", "precipitation", "PRCP", "rainfall" and the like), in upper or lower case.
struct RainColumns {
  std::string date;
  std::string depth;
};

// Reads a record from the text of a file. The first line names the columns. Dates are ISO
// (2020-12-31) or US (12/31/2020); fields may be quoted. Throws FileError, naming lines, where a
// column is missing, a row cannot be read, or rows of several NOAA stations are mixed.
RainRecord ParseRainRecord(std::string_view text, RainUnit unit, const RainColumns& columns = {});

// The same from a file; also throws FileError where the file cannot be read.
RainRecord ReadRainRecord(const std::string& path, RainUnit unit, const RainColumns& columns = {});

// The findings in words for the user, one sentence a line, the last without a line end.
std::string DescribeFindings(const RainRecord& record);

}  // namespace orvik
