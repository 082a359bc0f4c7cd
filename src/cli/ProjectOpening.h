// Opens a project file for a command.
#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "files/OpenedProject.h"

namespace orvik {

// The project with its results and the curves of its station. Nothing where it cannot be opened;
// the reason has been printed.
std::optional<OpenedProject> OpenProject(Console& console, const std::string& path,
                                         const std::string& dataFolder);

// Why the project has no result; empty where it has one.
std::string WhyNoResult(const OpenedProject& opened);

// Prints why the project has no result, if it has none. The exit code: Done with a result, else
// Refused.
ExitCode PrintMissingResult(Console& console, const OpenedProject& opened);

}  // namespace orvik
