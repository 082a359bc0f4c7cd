// What every command of kav is made of: options bound to a parser, and the run after parsing.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "cli/Console.h"

namespace orvik {

// Options that every command takes.
struct CommonOptions {
  std::string data;   // folder that holds "KAV Data"; empty: the program's own folder
  bool json = false;  // print one JSON object
};

// A command adds itself to the parser, and returns what to run when the user names it.
using CommandRun = std::function<ExitCode(Console&, const CommonOptions&)>;

CommandRun AddStationsCommand(CLI::App& app);
CommandRun AddSolveCommand(CLI::App& app);
CommandRun AddCalcCommand(CLI::App& app);
CommandRun AddChartCommand(CLI::App& app);
CommandRun AddReportCommand(CLI::App& app);
CommandRun AddCurvesCommand(CLI::App& app);

// The folder that holds "KAV Data", with a separator at its end.
std::string DataFolder(const Console& console, const CommonOptions& options);

// What is wrong with a text that is not a number, else empty: a typing error must never be
// calculated with.
std::string ValidateNumber(const std::string& text);

}  // namespace orvik
