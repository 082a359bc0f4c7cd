// The command line of the module.
#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"

namespace orvik {

// Runs one command; `arguments` without the program's name, in UTF-8. Returns the exit code. Throws
// nothing: an exception that a command does not handle ends as one sentence and
// ExitCode::FileError.
int RunKav(const std::vector<std::string>& arguments, Console& console);

// RunKav for a program that ends after it: also flushes the output. A full disk or a closed pipe on
// standard output ends as a sentence and ExitCode::FileError.
int RunKavAndFlush(const std::vector<std::string>& arguments, Console& console);

}  // namespace orvik
