// kav calc: calculates a project file and prints every field as the window would show it.
#include <algorithm>
#include <iomanip>
#include <memory>

#include "base/PrintableText.h"
#include "cli/Command.h"
#include "cli/JsonOutput.h"
#include "cli/ProjectOpening.h"
#include "design/Calculate.h"
#include "design/HostResults.h"

namespace orvik {
namespace {

// One line of the answer: under the field's name in JSON, with its caption and unit in text.
struct Row {
  std::string name;
  std::string caption;
  std::string value;
  std::string unit = {};
};

// The caption of a field. Normalized quantities are called so here, since no field beside them
// shows it.
std::string CaptionOf(const FieldDesign& field) {
  switch (field.id) {
    case Field::R:
      return "Normalized reuse rate R";
    case Field::V:
      return "Normalized storage volume V";
    default:
      return PlainCaption(field.caption);
  }
}

void AddFields(std::vector<Row>& rows, const Project& project,
               std::initializer_list<FieldKind> kinds) {
  for (const FieldDesign& field : Fields()) {
    if (std::ranges::find(kinds, field.kind) == kinds.end()) continue;
    rows.push_back({std::string(field.control), CaptionOf(field), project.Text(field.id),
                    std::string(field.shortUnit)});
  }
}

void AddList(std::vector<Row>& rows, ListField list, std::string item) {
  rows.push_back({std::string(DesignOf(list).control), PlainCaption(list), std::move(item)});
}

void AddSlots(std::vector<Row>& rows, const Project& project) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    const Field field = SlotField(slot);
    rows.push_back({std::string(DesignOf(field).control),
                    std::string(SiteQuantityCaption(QuantityInSlot(project.mode, slot))),
                    project.Text(field)});
  }
}

std::vector<Row> RowsOf(const Project& project) {
  using enum FieldKind;
  std::vector<Row> rows;
  AddFields(rows, project, {Text, Wrapped, Date});
  AddFields(rows, project, {Number, Result});
  AddList(rows, ListField::ClimateStation, project.StationName());
  AddList(rows, ListField::SolveForMode, project.ModeName());
  AddSlots(rows, project);
  AddFields(rows, project, {Normalized});
  rows.push_back({"ReuseRate", "Reuse rate of the site", ReuseRateResult(project), "gal/day"});
  return rows;
}

nlohmann::ordered_json JsonOf(const std::vector<Row>& rows, const Message& shown) {
  nlohmann::ordered_json object;
  for (const Row& row : rows) object[row.name] = row.value;
  object["txtErrMsg"] = Sentence(shown);
  object["helpTopic"] = HelpTopic(shown.id);
  return object;
}

void PrintText(std::ostream& out, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    if (row.value.empty()) {
      out << row.caption;
    } else if (row.unit.empty()) {
      out << std::left << std::setw(29) << row.caption << PrintableText(row.value);
    } else {
      out << std::left << std::setw(29) << row.caption << std::setw(12) << PrintableText(row.value)
          << row.unit;
    }
    out << '\n';
  }
}

ExitCode RunCalc(Console& console, const CommonOptions& options, const std::string& path) {
  const auto opened = OpenProject(console, path, DataFolder(console, options));
  if (!opened) return ExitCode::FileError;
  const auto rows = RowsOf(opened->project);
  if (options.json) {
    PrintJson(console, JsonOf(rows, opened->shown));
  } else {
    PrintText(console.out, rows);
  }
  return PrintMissingResult(console, *opened);
}

}  // namespace

CommandRun AddCalcCommand(CLI::App& app) {
  auto path = std::make_shared<std::string>();
  auto* command = app.add_subcommand("calc", "Calculate a project file and show every field");
  command->add_option("project", *path, "Project file")->required()->type_name("PROJECT.kav");
  command->footer("Example:\n  kav calc samples/efficiency.kav --json");
  return [path](Console& console, const CommonOptions& options) {
    return RunCalc(console, options, *path);
  };
}

}  // namespace orvik
