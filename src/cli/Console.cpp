#include "cli/Console.h"

#include <algorithm>

namespace orvik {

void PrintMessage(Console& console, std::string_view message) {
  std::string text(message);
  std::erase(text, '\r');
  console.err << text << '\n';
}

}  // namespace orvik
