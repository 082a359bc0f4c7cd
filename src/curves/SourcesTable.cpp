#include <string>
#include <string_view>

#include "base/FixedText.h"
#include "curves/StationCurves.h"
#include "curves/StationSources.h"
#include "engine/ClimateStations.h"
#include "rain/RainDate.h"

namespace orvik {
namespace {

std::string Introduction(std::string_view madeBy) {
  return R"(# Sources of the design curves

These curves are computed by ORVIK from public daily rainfall: records of NOAA's cooperative observers and, for
Gainesville after 1983, NOAA's daily summaries (United States government, public domain). Where your authority has
adopted curves, put those into this folder and use them. Method and assumptions: the help's page
"How the design curves are made".

This file and the curve files are written by )" +
         std::string(madeBy) + R"(.

## Rainfall records

A usable year misses at most )" +
         std::to_string(kMostMissingDays) +
         R"( days; mean and wettest day are those of the usable years. Where a neighbour is named, its record stands in for a station without a long
record of its own.

| no. | station | record of | NOAA number | period | usable years | mean in/year | wettest day in |
| --: | --- | --- | --- | --- | --: | --: | --: |
)";
}

std::string FindingsIntroduction() {
  return R"(
## What the records lack

Years left out miss more than )" +
         std::to_string(kMostMissingDays) +
         R"( days; days missing in the usable years count as dry. The other numbers are those of the
whole record: rows without a depth, gaps between rows and the days in them, rows that repeat a date (the first value
counts), those of them with a different depth, and negative depths, which are taken as missing.

| station | years left out | missing days | rows without depth | gaps | days in gaps | duplicates | conflicts | negatives |
| --- | --: | --: | --: | --: | --: | --: | --: | --: |
)";
}

std::string ErrorsIntroduction() {
  return R"(
## Fit errors

Largest / mean deviation of the efficiency simulated along a curve from the curve's E, in percentage points. The limits
are )" + FixedText(kMostError, 1) +
         " and " + FixedText(kMostMeanError, 1) + ".\n\n";
}

constexpr std::string_view kStartsIntroduction = R"(
## Where the curves begin

VStart, inches on the equivalent impervious area. All curves end at V maximum.

)";

std::string SourceRow(const StationCurves& station) {
  const StationSource& source = SourceOfStation(station.station);
  return "| " + std::to_string(station.station) + " | " +
         std::string(ClimateStationName(station.station)) + " | " +
         std::string(source.recordOf.empty() ? "itself" : source.recordOf) + " | " +
         std::string(source.noaaNumber) + " | " + IsoDate(station.record.first) + " to " +
         IsoDate(station.record.last) + " | " + std::to_string(station.years.kept.size()) + " | " +
         FixedText(station.years.meanAnnualIn, 1) + " | " +
         FixedText(station.years.wettestDayIn, 2) + " |\n";
}

std::string FindingsRow(const StationCurves& station) {
  const RainFindings& found = station.record.findings;
  std::string text = "| " + std::string(ClimateStationName(station.station)) + " |";
  for (const int number : {static_cast<int>(station.years.leftOutYears.size()),
                           station.years.missingDays, found.missing, found.gaps, found.gapDays,
                           found.duplicate, found.conflicting, found.negative}) {
    text += " " + std::to_string(number) + " |";
  }
  return text + "\n";
}

// A table with one row for each station and one column for each curve.
template <typename CellText>
std::string CurveTable(const std::vector<StationCurves>& stations, CellText cellText) {
  std::string head = "| station |";
  std::string rule = "| --- |";
  for (const EfficiencyCurve& curve : stations.front().made.set.curves) {
    head += " E=" + FixedText(curve.E, 0) + "% |";
    rule += " --: |";
  }
  std::string text = head + "\n" + rule + "\n";
  for (const StationCurves& station : stations) {
    text += "| " + std::string(ClimateStationName(station.station)) + " |";
    for (std::size_t i = 0; i < station.made.set.curves.size(); ++i) {
      text += " " + cellText(station.made, i) + " |";
    }
    text += "\n";
  }
  return text;
}

}  // namespace

std::string SourcesTable(const std::vector<StationCurves>& stations, std::string_view madeBy) {
  std::string text = Introduction(madeBy);
  for (const StationCurves& station : stations) text += SourceRow(station);
  if (stations.empty()) return text;
  text += FindingsIntroduction();
  for (const StationCurves& station : stations) text += FindingsRow(station);
  const PondOptions& options = stations.front().options;
  text += "\n## Method\n\nAll curves: " + HoldOffText(options) + ", " + AbstractionText(options) +
          ".\n";
  text += ErrorsIntroduction();
  text += CurveTable(stations, [](const MadeCurves& made, std::size_t i) {
    return FixedText(made.errors[i].max, 2) + " / " + FixedText(made.errors[i].mean, 2);
  });
  text += kStartsIntroduction;
  text += CurveTable(stations, [](const MadeCurves& made, std::size_t i) {
    return FixedText(made.set.curves[i].VStart, 2);
  });
  return text;
}

}  // namespace orvik
