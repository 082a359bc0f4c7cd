// kav stations: lists the climate stations, and which of them have curves.
#include <iomanip>
#include <memory>

#include "base/Paths.h"
#include "cli/Command.h"
#include "cli/JsonOutput.h"
#include "engine/ClimateStations.h"

namespace orvik {
namespace {

struct StationRow {
  int number;
  std::string name;
  bool hasCurves;
};

std::vector<StationRow> FindStations(const std::string& dataFolder) {
  const std::string folder = dataFolder + "KAV Data" + kPathSeparator;
  std::vector<StationRow> rows;
  for (std::int16_t i = 1; i <= NumRainfallStations(); ++i) {
    const std::string name(ClimateStationName(i));
    rows.push_back({i, name, FileExists(folder + name + ".crv")});
  }
  return rows;
}

nlohmann::ordered_json JsonOf(const std::vector<StationRow>& rows) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const StationRow& row : rows) {
    list.push_back({{"number", row.number}, {"station", row.name}, {"curves", row.hasCurves}});
  }
  return {{"stations", list}};
}

void PrintText(std::ostream& out, const std::vector<StationRow>& rows) {
  out << "No.  Station          Curves\n";
  for (const StationRow& row : rows) {
    out << std::right << std::setw(3) << row.number << "  " << std::left << std::setw(17)
        << row.name << (row.hasCurves ? "yes" : "no") << '\n';
  }
}

ExitCode RunStations(Console& console, const CommonOptions& options) {
  const auto rows = FindStations(DataFolder(console, options));
  if (options.json) {
    PrintJson(console, JsonOf(rows));
  } else {
    PrintText(console.out, rows);
  }
  return ExitCode::Done;
}

}  // namespace

CommandRun AddStationsCommand(CLI::App& app) {
  auto* command = app.add_subcommand("stations", "List the climate stations");
  command->footer("Example:\n  kav stations --json");
  return RunStations;
}

}  // namespace orvik
