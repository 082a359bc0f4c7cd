#include "base/PrintableText.h"

#include <cstdint>

#include "base/TextEncoding.h"
#include "base/Utf8.h"

namespace orvik {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

bool IsBetween(std::uint32_t code, std::uint32_t first, std::uint32_t last) {
  return first <= code && code <= last;
}

// C0, DEL and C1; line and paragraph separators; embeddings, overrides and isolates of direction.
bool IsObeyed(std::uint32_t code) {
  return code < 0x20 || IsBetween(code, 0x7F, 0x9F) || IsBetween(code, 0x2028, 0x202E) ||
         IsBetween(code, 0x2066, 0x2069);
}

}  // namespace

std::string PrintableText(std::string_view text, std::size_t most) {
  std::string line;
  for (std::size_t count = 0; !text.empty(); ++count) {
    if (count == most) return line + "...";
    const std::size_t length = LengthOfUtf8(text);
    if (length == 0) {
      line += kReplacement;
    } else if (IsObeyed(CodePointAt(text, 0))) {
      line += ' ';
    } else {
      line += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return line;
}

std::string Quotable(std::string_view text) {
  return PrintableText(text, kMostQuoted);
}

}  // namespace orvik
