// kav report where this program is built without the libraries that make picture files.
#include "cli/Command.h"

namespace orvik {

CommandRun AddReportCommand(CLI::App& app) {
  auto* command = app.add_subcommand("report", "Write a report as PDF (not in this build of kav)");
  command->allow_extras();
  command->footer(
      "This kav is built without the libraries that make PDF files; the one for Linux has "
      "them.\nThe module's own window prints the report.");
  return [](Console& console, const CommonOptions&) {
    PrintMessage(console,
                 "This kav cannot write reports: it is built without the libraries that make PDF "
                 "files. The one for Linux has them.");
    return ExitCode::WrongUsage;
  };
}

}  // namespace orvik
