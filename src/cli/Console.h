// What a command of kav knows of its surroundings, and where it writes to.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

struct Hint;

// Exit codes of every command.
enum class ExitCode : int {
  Done = 0,
  Refused = 1,  // no result, or a check failed; the reason is on `err`
  WrongUsage = 2,
  FileError = 3,  // a file cannot be read or written
};

struct Console {
  std::ostream& out;          // data
  std::ostream& err;          // messages and progress
  bool isErrTerminal;         // progress is shown on a terminal only
  std::string programFolder;  // folder of the program's file, with a separator at its end; the data
                              // lies beside it
  // What was printed so far, for the JSON object.
  std::vector<std::string> messages = {};
  std::vector<std::string> hints = {};
  bool hasPrintedJson = false;
};

// Prints a message to `err`, with a line end; a CR LF inside it becomes a line end too. Each of its
// lines is made fit for a terminal (base/PrintableText.h).
void PrintMessage(Console& console, std::string_view message);

// Prints hints to `err`, each on a line that begins with "hint: ".
void PrintHints(Console& console, const std::vector<Hint>& hints);

}  // namespace orvik
