// kav report: writes a project's printed report as a PDF file.
#include <memory>
#include <optional>

#include "base/FileError.h"
#include "cli/Command.h"
#include "cli/DateOption.h"
#include "cli/JsonOutput.h"
#include "cli/OutputFile.h"
#include "cli/ProjectOpening.h"
#include "platform/cairo/CairoPrinter.h"
#include "platform/cairo/PictureFile.h"
#include "printing/ProjectReport.h"

namespace orvik {
namespace {

struct ReportRequest {
  std::string project;
  std::string output;
  std::string date;
  std::string paper = "letter";
};

std::string ValidatePdf(const std::string& path) {
  return PictureKindOf(path) == PictureKind::Pdf ? std::string()
                                                 : "\"" + path + "\" does not end in .pdf";
}

std::string ValidateDate(const std::string& text) {
  return ParseDateAndTime(text)
             ? std::string()
             : "\"" + text + "\" is not a date and time like 2026-04-17 09:30:00";
}

std::string MakeReport(const OpenedProject& opened, PaperFormat paper, const ClockTime& date) {
  std::string bytes;
  CairoPrinter printer(bytes, paper, date);
  const std::string shown = Sentence(opened.shown);
  printer.StartDocument(ReportTitle(opened.project));
  ProjectReport(opened.project, shown, opened.station.curves.get(), date).PrintDoc(printer);
  printer.EndDocument();
  return bytes;
}

ExitCode RunReport(Console& console, const CommonOptions& options, const ReportRequest& request) {
  const ClockTime date = request.date.empty() ? DateAndTimeNow() : *ParseDateAndTime(request.date);
  const auto opened = OpenProject(console, request.project, DataFolder(console, options));
  if (!opened) return ExitCode::FileError;
  const PaperFormat paper = request.paper == "a4" ? PaperFormat::A4 : PaperFormat::Letter;
  try {
    WriteOutputFile(request.output, MakeReport(*opened, paper, date));
  } catch (const FileError& error) {
    PrintMessage(console, error.what());
    return ExitCode::FileError;
  }
  if (options.json) {
    PrintJson(console, {{"file", request.output},
                        {"message", WhyNoResult(*opened)},
                        {"helpTopic", HelpTopic(opened->shown.id)}});
  }
  return PrintMissingResult(console, *opened);
}

}  // namespace

CommandRun AddReportCommand(CLI::App& app) {
  auto request = std::make_shared<ReportRequest>();
  auto* command = app.add_subcommand("report", "Write a project's report as a PDF file");
  command->add_option("project", request->project, "Project file")
      ->required()
      ->type_name("PROJECT.kav");
  command->add_option("-o,--output", request->output, "The report")
      ->required()
      ->type_name("FILE.pdf")
      ->check(ValidatePdf);
  command
      ->add_option(
          "--date", request->date,
          "Date and time in the report's header; now if not given. The same date makes the "
          "same file")
      ->type_name("\"YYYY-MM-DD HH:MM:SS\"")
      ->check(ValidateDate);
  command->add_option("--paper", request->paper, "letter (if not given) or a4")
      ->type_name("PAPER")
      ->transform(CLI::IsMember({"letter", "a4"}, CLI::ignore_case));
  command->footer(
      R"(The report is written for a project without a result too: it says why, and the exit code is 1.

Example:
  kav report samples/efficiency.kav -o report.pdf --paper a4)");
  return [request](Console& console, const CommonOptions& options) {
    return RunReport(console, options, *request);
  };
}

}  // namespace orvik
