// kav calc: a project file, calculated and shown field by field as the window would show it.
#include <iomanip>
#include <memory>
#include <nlohmann/json.hpp>

#include "cli/Command.h"
#include "cli/ProjectOpening.h"
#include "entry/Form1.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/HeadlessToolkit.h"
#include "project/FieldCaptions.h"
#include "project/WithoutResults.h"

namespace orvik {
namespace {

// One line of the answer: the field's name in JSON, its caption and unit in text.
struct Row {
  std::string name;
  std::string caption;
  std::string value;
  std::string unit = {};
};

void AddDescription(std::vector<Row>& rows, ProjectForm& form) {
  rows.push_back(
      {"txtProjectName", std::string(FieldCaption::kProject), form.txtProjectName.Text()});
  rows.push_back(
      {"txtDescription", std::string(FieldCaption::kDescription), form.txtDescription.Text()});
  rows.push_back({"txtProjectNumber", std::string(FieldCaption::kProjectNumber),
                  form.txtProjectNumber.Text()});
  rows.push_back({"txtEngineer", std::string(FieldCaption::kEngineer), form.txtEngineer.Text()});
  rows.push_back({"txtSuervisingEngineer", std::string(FieldCaption::kSupervisingEngineer),
                  form.txtSuervisingEngineer.Text()});
  rows.push_back({"txtDate", std::string(FieldCaption::kDate), form.txtDate.Text()});
}

void AddSite(std::vector<Row>& rows, ProjectForm& form) {
  rows.push_back(
      {"txtBasinArea", std::string(FieldCaption::kBasinArea), form.txtBasinArea.Text(), "ac"});
  rows.push_back({"txtRunoffCoefficient", std::string(FieldCaption::kRunoffCoefficient),
                  form.txtRunoffCoefficient.Text()});
  rows.push_back({"txtEquivalentImperviousArea",
                  std::string(FieldCaption::kEquivalentImperviousArea),
                  form.txtEquivalentImperviousArea.Text(), "ac"});
  rows.push_back({"txtIrrigationArea", std::string(FieldCaption::kIrrigationArea),
                  form.txtIrrigationArea.Text(), "ac"});
  rows.push_back({"cmbClimateStation", std::string(FieldCaption::kClimateStation),
                  ChosenItem(*form.cmbClimateStation)});
  rows.push_back(
      {"cmbSolveFor", std::string(FieldCaption::kSolveFor), ChosenItem(*form.cmbSolveFor)});
}

void AddSolution(std::vector<Row>& rows, ProjectForm& form) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    rows.push_back({"txtSolveFor(" + std::to_string(slot) + ")", form.lblSolveFor(slot).Caption(),
                    form.txtSolveFor(slot).Text()});
  }
  rows.push_back({"txtR", "Normalized reuse rate R", form.txtR.Text(), "in/day on the EIA"});
  rows.push_back({"txtE", "Efficiency E", form.txtE.Text(), "% of the runoff"});
  rows.push_back({"txtV", "Normalized storage volume V", form.txtV.Text(), "in on the EIA"});
}

std::vector<Row> RowsOf(Form1& window) {
  std::vector<Row> rows;
  AddDescription(rows, window.Fields());
  AddSite(rows, window.Fields());
  AddSolution(rows, window.Fields());
  rows.push_back({"ReuseRate", "Reuse rate of the site", window.ReuseRate(), "gal/day"});
  return rows;
}

void PrintJson(std::ostream& out, const std::vector<Row>& rows, const ctrlErrorMessageBar& bar) {
  nlohmann::ordered_json object;
  for (const Row& row : rows) object[row.name] = row.value;
  object["txtErrMsg"] = bar.Text();
  object["helpTopic"] = bar.ExtendedHelpTopic();
  // Bytes of a damaged file that are no text are shown as the sign for that.
  out << object.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

// A field of a damaged file may hold anything; a terminal would obey its control characters.
std::string Printable(std::string text) {
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) c = ' ';
  }
  return text;
}

void PrintText(std::ostream& out, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    if (row.value.empty()) {
      out << row.caption;
    } else if (row.unit.empty()) {
      out << std::left << std::setw(29) << row.caption << Printable(row.value);
    } else {
      out << std::left << std::setw(29) << row.caption << std::setw(12) << Printable(row.value)
          << row.unit;
    }
    out << '\n';
  }
}

ExitCode RunCalc(Console& console, const CommonOptions& options, const std::string& path) {
  HeadlessToolkit toolkit;
  HeadlessDesktop desktop;
  Form1 window(toolkit, desktop, DataFolder(console, options));
  if (!OpenProject(console, window, desktop, path)) return ExitCode::FileTrouble;
  const auto rows = RowsOf(window);
  const ctrlErrorMessageBar& bar = window.Fields().txtErrMsg;
  options.json ? PrintJson(console.out, rows, bar) : PrintText(console.out, rows);
  const std::string message = WhyWithoutResults(window.Fields(), window.Chart());
  if (message.empty()) return ExitCode::Done;
  PrintMessage(console, message);
  return ExitCode::CalculationSaysNo;
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
