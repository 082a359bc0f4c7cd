// kav chart where this program is built without the libraries that make picture files.
#include "cli/Command.h"

namespace orvik {

CommandRun AddChartCommand(CLI::App& app) {
  auto* command = app.add_subcommand("chart", "Draw a design chart (not in this build of kav)");
  command->allow_extras();
  command->footer(
      "This kav is built without the libraries that make picture files; the one for Linux has "
      "them.\nThe module's own window shows and prints the chart.");
  return [](Console& console, const CommonOptions&) {
    PrintMessage(console,
                 "This kav cannot draw charts: it is built without the libraries that make picture "
                 "files. The one for Linux has them.");
    return ExitCode::WrongUsage;
  };
}

}  // namespace orvik
