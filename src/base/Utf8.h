// Stepping through UTF-8 text, character by character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvik {

// True for the bytes of a character that follow its first.
constexpr bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The number of bytes of a character that begins with `lead`; 1 where no character begins with it.
constexpr std::size_t CharacterLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte < 0xC0U) return 1;
  if (byte < 0xE0U) return 2;
  return byte < 0xF0U ? 3 : 4;
}

// The code point of the character that begins at `at`, which lies within the text; any value where
// the bytes are not UTF-8.
std::uint32_t CodePointAt(std::string_view text, std::size_t at);

// The number of code points.
std::size_t CountCodePoints(std::string_view text);

// Appends the character of a code point up to U+FFFF.
void AppendUtf8(std::string& text, std::uint16_t codePoint);

}  // namespace orvik
