// kav curves make-all: makes the curve files of all climate stations from a folder of rainfall
// records.
#include <algorithm>
#include <iomanip>
#include <memory>

#include "base/FixedText.h"
#include "base/Paths.h"
#include "cli/CurvesOptions.h"
#include "cli/CurvesTable.h"
#include "cli/JsonOutput.h"
#include "cli/OutputFile.h"
#include "curves/ChartAxes.h"
#include "curves/StationCurves.h"
#include "engine/ClimateStations.h"
#include "engine/CurveFileWriter.h"
#include "rain/RainDate.h"

namespace orvik {
namespace {

constexpr std::string_view kMadeBy = "`kav curves make-all --rain-dir DIR -o DIR`";

struct CurvesMakeAllRequest {
  std::string rainFolder;
  std::string folder;
  PondArguments pond;
  AxesArguments axes;
};

std::string NameOf(const StationCurves& station) {
  return std::string(ClimateStationName(station.station));
}

// One line of progress, overwritten for each station, and only on a terminal. Beyond the last
// station it is erased.
void ShowProgress(Console& console, int station) {
  if (!console.isErrTerminal) return;
  const int count = NumRainfallStations();
  if (station > count) {
    console.err << "\r\x1b[K" << std::flush;
    return;
  }
  console.err << "\r\x1b[KMaking " << station << " of " << count << ": "
              << ClimateStationName(static_cast<std::int16_t>(station)) << std::flush;
}

// A refusal names its station. All records here are in inches, so the advice about units is left
// out.
StationCurves MakeStation(const std::string& rainFolder, std::int16_t station,
                          const PondOptions& pond, const ChartAxes& axes) {
  const auto named = [&](const std::string& sentence) {
    return Refusal(std::string(ClimateStationName(station)) + ": " + sentence);
  };
  try {
    return MakeStationCurves(rainFolder, station, pond, axes);
  } catch (const ImplausibleRain& refusal) {
    throw named(refusal.what());
  } catch (const Refusal&) {
    throw named(SentenceOfRefusal());
  }
}

std::vector<StationCurves> MakeAll(Console& console, const CurvesMakeAllRequest& request) {
  const PondOptions pond = ToPondOptions(request.pond);
  const ChartAxes axes = ToChartAxes(request.axes);
  std::vector<StationCurves> stations;
  try {
    for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
      ShowProgress(console, i);
      stations.push_back(MakeStation(WithEndingSeparator(request.rainFolder), i, pond, axes));
    }
  } catch (...) {
    ShowProgress(console, NumRainfallStations() + 1);
    throw;
  }
  ShowProgress(console, NumRainfallStations() + 1);
  return stations;
}

void WriteAll(const std::string& folder, const std::vector<StationCurves>& stations) {
  MakeOutputFolder(folder);
  const std::string prefix = WithEndingSeparator(folder);
  for (const StationCurves& station : stations) {
    WriteOutputFile(prefix + NameOf(station) + ".crv", CurveFileText(station.made.set));
  }
  WriteOutputFile(prefix + "SOURCES.md", SourcesTable(stations, kMadeBy));
}

// The largest errors among a station's curves.
CurveError WorstError(const StationCurves& station) {
  CurveError worst;
  for (const CurveError& error : station.made.errors) {
    worst.max = std::max(worst.max, error.max);
    worst.mean = std::max(worst.mean, error.mean);
  }
  return worst;
}

void PrintText(std::ostream& out, const std::vector<StationCurves>& stations) {
  out << "Station          Years  Mean in/year  Largest error  Mean error  VStart in "
         "(E=50...95%)\n";
  for (const StationCurves& station : stations) {
    const CurveError worst = WorstError(station);
    const auto& curves = station.made.set.curves;
    out << std::left << std::setw(17) << NameOf(station) << std::right << std::setw(5)
        << station.years.kept.size() << std::setw(14) << FixedText(station.years.meanAnnualIn, 1)
        << std::setw(15) << FixedText(worst.max, 2) << std::setw(12) << FixedText(worst.mean, 2)
        << "  " << FixedText(curves.front().VStart, 2) << " ... "
        << FixedText(curves.back().VStart, 2) << '\n';
  }
}

nlohmann::ordered_json FindingsJson(const StationCurves& station) {
  const RainFindings& found = station.record.findings;
  return {{"yearsLeftOut", station.years.leftOutYears.size()},
          {"missingDays", station.years.missingDays},
          {"rowsWithoutDepth", found.missing},
          {"gaps", found.gaps},
          {"gapDays", found.gapDays},
          {"duplicates", found.duplicate},
          {"conflicts", found.conflicting},
          {"negatives", found.negative}};
}

nlohmann::ordered_json JsonOf(const std::vector<StationCurves>& stations) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const StationCurves& station : stations) {
    list.push_back({{"station", NameOf(station)},
                    {"usableYears", station.years.kept.size()},
                    {"meanAnnualIn", station.years.meanAnnualIn},
                    {"wettestDayIn", station.years.wettestDayIn},
                    {"wettestDay", IsoDate(station.years.wettestDay)},
                    {"findings", FindingsJson(station)},
                    {"holdOffDays", station.options.holdOffDays},
                    {"abstractionIn", station.options.abstractionIn},
                    {"curves", CurvesJson(station.made.set, AllJudged(station.made.errors))}});
  }
  return {{"stations", list}};
}

}  // namespace

CommandRun AddCurvesMakeAllCommand(CLI::App& curves) {
  auto request = std::make_shared<CurvesMakeAllRequest>();
  auto* command = curves.add_subcommand(
      "make-all", "Make the curve files of all climate stations and the table of their sources");
  command
      ->add_option("--rain-dir", request->rainFolder,
                   "Folder of the records, <station>.csv with depths in inches")
      ->required()
      ->type_name("DIR")
      ->check(ValidateNotBlank);
  command->add_option("-o,--output", request->folder, "Folder of the curve files to write")
      ->required()
      ->type_name("DIR")
      ->check(ValidateNotBlank);
  AddPondOptions(*command, request->pond);
  AddAxesOptions(*command, request->axes);
  command->footer(std::string(kBalanceDefinition) + R"(

Nothing is written unless all stations could be made.

Example:
  kav curves make-all --rain-dir rain -o "KAV Data")");
  return [request](Console& console, const CommonOptions& options) {
    return RunWithMessages(console, [&] {
      const auto stations = MakeAll(console, *request);
      for (const StationCurves& station : stations) {
        WarnOfSuspectedCode(console, station.years, NameOf(station));
      }
      WriteAll(request->folder, stations);
      if (options.json) {
        PrintJson(console, JsonOf(stations));
      } else {
        PrintText(console.out, stations);
      }
      return ExitCode::Done;
    });
  };
}

}  // namespace orvik
