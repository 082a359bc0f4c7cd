#include "base/Text.h"

namespace orvik {

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string FoldLineEnds(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isEnd = text[i] == '\r' || text[i] == '\n';
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    line += isEnd ? ' ' : text[i];
  }
  return line;
}

}  // namespace orvik
