// The command line of the module.
#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"

namespace orvik {

// Runs one command; `arguments` without the program's name, in UTF-8. Returns the exit code. Throws
// nothing: what a command does not expect ends as one sentence and ExitCode::FileTrouble.
int RunKav(const std::vector<std::string>& arguments, Console& console);

// RunKav for a program that ends behind it: also sees to it that all data has arrived. A full disk
// or a closed pipe on standard output ends as a sentence and ExitCode::FileTrouble.
int RunKavToTheEnd(const std::vector<std::string>& arguments, Console& console);

}  // namespace orvik
