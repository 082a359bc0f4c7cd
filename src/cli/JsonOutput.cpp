#include "cli/JsonOutput.h"

#include <utility>

namespace orvik {

void PrintJson(Console& console, nlohmann::ordered_json object) {
  object["hints"] = console.hints;
  console.out << object.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  console.hasPrintedJson = true;
}

void PrintJsonOfFailure(Console& console, ExitCode exitCode) {
  PrintJson(console, {{"exitCode", static_cast<int>(exitCode)}, {"messages", console.messages}});
}

}  // namespace orvik
