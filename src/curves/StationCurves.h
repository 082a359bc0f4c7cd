// The curves of the climate stations, made from a folder of rainfall records.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "curves/CurveMaker.h"
#include "pond/PondDays.h"
#include "rain/RainRecord.h"
#include "rain/RainYears.h"

namespace orvik {

struct StationCurves {
  std::int16_t station = 0;  // its number
  RainRecord record;         // without its days, to save memory
  RainYears years;           // likewise
  PondOptions options;       // that they were made with
  MadeCurves made;
};

// Makes the curves of a station from `<rainFolder><station>.csv`, whose depths are in inches.
// `rainFolder` ends with a separator. Throws FileError, naming the file, and Refusal.
StationCurves MakeStationCurves(const std::string& rainFolder, std::int16_t station,
                                const PondOptions& options, const ChartAxes& axes);

// What the curves were made from and how well they fit, as the text of a Markdown file. `madeBy` is
// the command that writes it and the curve files, in Markdown: "`kav curves ...`".
std::string SourcesTable(const std::vector<StationCurves>& stations, std::string_view madeBy);

}  // namespace orvik
