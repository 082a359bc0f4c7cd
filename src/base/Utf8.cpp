#include "base/Utf8.h"

#include <algorithm>

namespace orvik {
namespace {

constexpr unsigned kBitsOfContinuation = 6;

// The continuation byte that holds the six bits from `shift` up.
char ContinuationOf(std::uint16_t codePoint, unsigned shift) {
  return static_cast<char>(0x80U | (static_cast<unsigned>(codePoint) >> shift & 0x3FU));
}

}  // namespace

std::uint32_t CodePointAt(std::string_view text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  if (first < 0x80U) return first;
  std::uint32_t code = first & (first < 0xE0U ? 0x1FU : first < 0xF0U ? 0x0FU : 0x07U);
  for (++at; at < text.size() && IsContinuation(text[at]); ++at) {
    code = code << kBitsOfContinuation | (static_cast<unsigned char>(text[at]) & 0x3FU);
  }
  return code;
}

std::size_t CountCodePoints(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsContinuation));
}

void AppendUtf8(std::string& text, std::uint16_t codePoint) {
  if (codePoint < 0x80U) {
    text += static_cast<char>(codePoint);
    return;
  }
  if (codePoint < 0x800U) {
    text += static_cast<char>(0xC0U | codePoint >> kBitsOfContinuation);
  } else {
    text += static_cast<char>(0xE0U | codePoint >> 2 * kBitsOfContinuation);
    text += ContinuationOf(codePoint, kBitsOfContinuation);
  }
  text += ContinuationOf(codePoint, 0);
}

}  // namespace orvik
