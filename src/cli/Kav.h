// The command line of the module.
#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"

namespace orvik {

// Runs one command; `arguments` without the program's name, in UTF-8. Returns the exit code. Throws
// nothing: what a command does not expect ends as one sentence and ExitCode::FileTrouble.
int RunKav(const std::vector<std::string>& arguments, Console& console);

}  // namespace orvik
