#include "cli/Kav.h"

#include <algorithm>
#include <exception>
#include <sstream>
#include <utility>

#include "base/ModuleVersion.h"
#include "base/NumberText.h"
#include "base/Paths.h"
#include "cli/Command.h"
#include "cli/JsonOutput.h"

namespace orvik {
namespace {

using Commands = std::vector<std::pair<CLI::App*, CommandRun>>;

void AddCommand(CLI::App& app, Commands& commands, CommandRun (*add)(CLI::App&)) {
  CommandRun run = add(app);
  CLI::App* command = app.get_subcommands([](const CLI::App*) { return true; }).back();
  command->footer(command->get_footer() +
                  "\n\nEvery command takes --data DIR and --json too; kav --help explains them.");
  commands.emplace_back(command, std::move(run));
}

// What the parser prints: help and version are data, all else is a message.
ExitCode PrintParserText(Console& console, const std::string& text, bool asked) {
  if (!asked) {
    PrintMessage(console, text);
    return ExitCode::WrongUsage;
  }
  console.out << text << (text.ends_with('\n') ? "" : "\n");
  return ExitCode::Done;
}

ExitCode RunChosen(const Commands& commands, Console& console, const CommonOptions& options) {
  const auto chosen =
      std::ranges::find_if(commands, [](const auto& c) { return c.first->parsed(); });
  return chosen->second(console, options);
}

ExitCode ParseAndRun(const std::vector<std::string>& arguments, Console& console) {
  CLI::App app{"Sizes stormwater reuse ponds: reuse rate R, storage volume V and efficiency E.",
               "kav"};
  CommonOptions options;
  app.set_version_flag("--version", "kav " + std::string(kModuleVersion));
  app.add_option("--data", options.data,
                 "Folder that holds \"KAV Data\"; otherwise the program's own folder")
      ->type_name("DIR");
  app.add_flag("--json", options.json, "Print one JSON object instead of text");
  app.require_subcommand(1);
  app.footer(R"(Example:
  kav solve --station Gainesville --rate 0.15 --volume 3

Exit codes: 0 done; 1 no result, or a check failed (the reason is on standard error); 2 wrong usage;
3 a file cannot be read or written.)");
  app.fallthrough();                       // the common options may follow the command
  app.allow_windows_style_options(false);  // "/folder/file" is a path on every system

  Commands commands;
  AddCommand(app, commands, AddStationsCommand);
  AddCommand(app, commands, AddSolveCommand);
  AddCommand(app, commands, AddCalcCommand);
  AddCommand(app, commands, AddChartCommand);
  AddCommand(app, commands, AddReportCommand);
  AddCommand(app, commands, AddCurvesCommand);

  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& error) {
    const bool asked = error.get_exit_code() == 0;  // --help, --version
    if (!asked && !app.remaining().empty() && app.get_subcommands().empty()) {
      PrintMessage(console, "There is no command \"" + app.remaining().front() +
                                "\". kav --help lists them.");
      return ExitCode::WrongUsage;
    }
    std::ostringstream text;
    app.exit(error, text, text);
    return PrintParserText(console, text.str(), asked);
  }
  return RunChosen(commands, console, options);
}

ExitCode RunOrSayWhyNot(const std::vector<std::string>& arguments, Console& console) {
  try {
    return ParseAndRun(arguments, console);
  } catch (const std::exception& error) {
    PrintMessage(console, std::string("The command could not be finished: ") + error.what());
  }
  return ExitCode::FileError;
}

}  // namespace

std::string DataFolder(const Console& console, const CommonOptions& options) {
  return WithEndingSeparator(options.data.empty() ? console.programFolder : options.data);
}

std::string ValidateNumber(const std::string& text) {
  return IsNumericText(text) ? std::string() : "\"" + text + "\" is not a number";
}

int RunKav(const std::vector<std::string>& arguments, Console& console) {
  const ExitCode exitCode = RunOrSayWhyNot(arguments, console);
  const bool wantsJson = std::ranges::find(arguments, "--json") != arguments.end();
  if (wantsJson && exitCode != ExitCode::Done && !console.hasPrintedJson) {
    PrintJsonOfFailure(console, exitCode);
  }
  return static_cast<int>(exitCode);
}

int RunKavAndFlush(const std::vector<std::string>& arguments, Console& console) {
  const int exitCode = RunKav(arguments, console);
  if (console.out.flush()) return exitCode;
  PrintMessage(console, "Standard output cannot be written.");
  return static_cast<int>(ExitCode::FileError);
}

}  // namespace orvik
