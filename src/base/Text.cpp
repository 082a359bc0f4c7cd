#include "base/Text.h"

#include <algorithm>

namespace orvik {
namespace {

char LowerCase(char letter) {
  return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, LowerCase, LowerCase);
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning) {
  return EqualIgnoringCase(text.substr(0, beginning.size()), beginning);
}

bool EndsWithIgnoringCase(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() &&
         EqualIgnoringCase(text.substr(text.size() - ending.size()), ending);
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
