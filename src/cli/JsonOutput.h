// The one JSON object that a command prints where it is asked for one.
#pragma once

#include <nlohmann/json.hpp>

#include "cli/Console.h"

namespace orvik {

// Prints the object to `out`, and in it, under "hints", the hints printed so far. Bytes that are
// not UTF-8 (of a path or an argument) become U+FFFD.
void PrintJson(Console& console, nlohmann::ordered_json object);

// For a command that ends without a result and has printed no object: {"exitCode", "messages",
// "hints"}.
void PrintJsonOfFailure(Console& console, ExitCode exitCode);

}  // namespace orvik
