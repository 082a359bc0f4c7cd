#include "cli/Console.h"

#include "base/PrintableText.h"
#include "design/Hints.h"

namespace orvik {
namespace {

// The text with each of its lines made fit for a terminal, and without the line end at its end.
std::string PrintableLines(std::string_view text) {
  std::string lines;
  for (bool isFirst = true; isFirst || !text.empty(); isFirst = false) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines += (isFirst ? "" : "\n") + PrintableText(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

}  // namespace

void PrintMessage(Console& console, std::string_view message) {
  console.messages.push_back(PrintableLines(message));
  console.err << console.messages.back() << '\n';
}

void PrintHints(Console& console, const std::vector<Hint>& hints) {
  for (const Hint& hint : hints) {
    console.hints.push_back(PrintableText(Sentence(hint)));
    console.err << "hint: " << console.hints.back() << '\n';
  }
}

}  // namespace orvik
