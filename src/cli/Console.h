// Where a command of kav reads its surroundings from and writes to.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace orvik {

// Exit codes of every command.
enum class ExitCode : int {
  Done = 0,
  CalculationSaysNo = 1,  // the calculation's message is on `err`
  WrongUsage = 2,
  FileTrouble = 3,  // a file cannot be read or written
};

struct Console {
  std::ostream& out;          // data
  std::ostream& err;          // messages and progress
  bool isErrTerminal;         // progress is shown on a terminal only
  std::string programFolder;  // folder of the program's file, with a separator at its end; the data
                              // lies beside it
};

// One message as a line on `err`; CR LF inside it becomes a line end.
void PrintMessage(Console& console, std::string_view message);

}  // namespace orvik
