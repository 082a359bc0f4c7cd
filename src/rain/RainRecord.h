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
  std::chrono::sys_days Date;
  double DepthIn = 0;  // inches
};

// Which rows were not used, and where the first of each kind stands (line 1 is the header).
struct RainFindings {
  int Rows = 0;         // rows with a date
  int Missing = 0;      // rows without a depth
  int Duplicate = 0;    // a date that stood before; the first row counts
  int Conflicting = 0;  // of these: the depth differs from the first row's
  int Negative = 0;     // a depth below zero, counted as missing
  int Trace = 0;        // "T": too little to measure, counted as 0
  int GapDays = 0;      // days between the first and the last date without a row
  int Gaps = 0;         // runs of such days
  int FirstConflictingLine = 0;
  int FirstNegativeLine = 0;
};

struct RainRecord {
  RainUnit Unit = RainUnit::Inches;
  std::chrono::sys_days First;  // dates of the first and the last row
  std::chrono::sys_days Last;
  std::vector<RainDay> Days;  // days with a value, by rising date, each date once
  RainFindings Findings;
};

// Names of the columns to read; an empty one means that a customary name is looked for ("date";
// "precipitation_in", "precipitation", "PRCP", "rainfall" and the like), in any case.
struct RainColumns {
  std::string Date;
  std::string Depth;
};

// Reads a record from the text of a file. The first line names the columns. Dates are ISO
// (2020-12-31) or US (12/31/2020); fields may be quoted. Throws FileError, naming lines, where
// a column is not found, a row is not readable, or rows of several NOAA stations are mixed.
RainRecord ParseRainRecord(std::string_view text, RainUnit unit, const RainColumns& columns = {});

// The same from a file; also throws FileError where the file cannot be read.
RainRecord ReadRainRecord(const std::string& path, RainUnit unit, const RainColumns& columns = {});

// What was found in the record, one sentence a line, without a line end at the end; for the user.
std::string DescribeFindings(const RainRecord& record);

}  // namespace orvik
