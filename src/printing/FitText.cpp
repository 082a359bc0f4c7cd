#include "printing/FitText.h"

#include <algorithm>
#include <cstdint>

#include "base/Text.h"
#include "base/Utf8.h"

namespace orvik {
namespace {

// Belongs to the character before it: combining accents, variation selectors, the joiner.
bool IsMark(std::uint32_t code) {
  return (0x0300 <= code && code <= 0x036F) || (0x1AB0 <= code && code <= 0x1AFF) ||
         (0x20D0 <= code && code <= 0x20FF) || (0xFE00 <= code && code <= 0xFE0F) || code == 0x200D;
}

// Behind the character that begins at `at`.
std::size_t EndOfCharacter(std::string_view text, std::size_t at) {
  constexpr std::uint32_t kJoiner = 0x200D;
  bool joined = false;
  std::size_t end = at;
  do {
    joined = CodePointAt(text, end) == kJoiner;
    do ++end;
    while (end < text.size() && IsContinuation(text[end]));
  } while (end < text.size() && (joined || IsMark(CodePointAt(text, end))));
  return end;
}

// Behind the most characters of the text, from its beginning, that fit into the width: the span is
// doubled until it is too wide, then halved, so that long texts are measured few times.
std::size_t LongestFit(std::string_view text, const std::vector<std::size_t>& ends, float width,
                       const TextWidth& widthOf) {
  const auto fits = [&](std::size_t count) {
    return widthOf(text.substr(0, ends[count - 1])) <= width;
  };
  std::size_t fitting = 0;
  std::size_t tooMany = 1;
  while (tooMany <= ends.size() && fits(tooMany)) {
    fitting = tooMany;
    tooMany *= 2;
  }
  tooMany = std::min(tooMany, ends.size() + 1);
  while (tooMany - fitting > 1) {
    const std::size_t middle = (fitting + tooMany) / 2;
    (fits(middle) ? fitting : tooMany) = middle;
  }
  return fitting == 0 ? 0 : ends[fitting - 1];
}

std::vector<std::size_t> EndsOfCharacters(std::string_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t at = 0; at < text.size();) {
    at = EndOfCharacter(text, at);
    ends.push_back(at);
  }
  return ends;
}

// Of the words' ends in a line's candidates; the blanks behind a word are not measured.
std::vector<std::size_t> EndsOfWords(std::string_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t at = 1; at <= text.size(); ++at) {
    if (text[at - 1] != ' ' && (at == text.size() || text[at] == ' ')) ends.push_back(at);
  }
  return ends;
}

// No line is longer than this, so that the search looks at a piece of a long text only.
constexpr std::size_t kMostBytesOfLine = 1000;

std::string_view Piece(std::string_view text) {
  if (text.size() <= kMostBytesOfLine) return text;
  std::size_t end = kMostBytesOfLine;
  while (end > 0 && IsContinuation(text[end])) --end;
  return text.substr(0, end);
}

std::size_t EndOfLine(std::string_view text, float width, const TextWidth& widthOf) {
  const std::string_view piece = Piece(text);
  std::vector<std::size_t> words = EndsOfWords(piece);
  // The last word of a piece may go on behind it.
  if (piece.size() < text.size() && words.size() > 1) words.pop_back();
  if (const std::size_t end = LongestFit(piece, words, width, widthOf)) return end;
  const std::size_t end = LongestFit(piece, EndsOfCharacters(piece), width, widthOf);
  return end != 0 ? end : EndOfCharacter(piece, 0);
}

}  // namespace

std::vector<std::string> WrapText(std::string_view text, float width, const TextWidth& widthOf) {
  std::vector<std::string> lines;
  text = Trim(text);
  while (!text.empty()) {
    const std::size_t end = EndOfLine(text, width, widthOf);
    lines.emplace_back(text.substr(0, end));
    text = Trim(text.substr(end));
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

std::string FitText(std::string_view text, float width, const TextWidth& widthOf) {
  const std::string_view piece = Piece(text);
  const bool isShort = piece.size() == text.size();
  if (widthOf(piece) <= width && (isShort || widthOf(text) <= width)) return std::string(text);
  const TextWidth withDots = [&](std::string_view part) {
    return widthOf(std::string(Trim(part)) + "...");
  };
  const std::size_t end = LongestFit(piece, EndsOfCharacters(piece), width, withDots);
  return std::string(Trim(piece.substr(0, end))) + "...";
}

}  // namespace orvik
