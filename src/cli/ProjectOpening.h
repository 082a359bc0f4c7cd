// Opens a project file for a command.
#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "files/OpenedProject.h"

namespace orvik {

// The project with its results and the curves of its station. Nothing: the console has been told
// why not.
std::optional<OpenedProject> OpenProject(Console& console, const std::string& path,
                                         const std::string& dataFolder);

// Done, or the message that there is no result and CalculationSaysNo.
ExitCode TellResult(Console& console, const OpenedProject& opened);

}  // namespace orvik
