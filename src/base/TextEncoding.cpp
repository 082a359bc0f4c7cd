#include "base/TextEncoding.h"

#include <array>
#include <cstdint>

#include "base/Utf8.h"

namespace orvik {
namespace {

// Code points of the bytes 0x80...0x9F in Windows-1252 (Unicode's CP1252.TXT); the rest of Latin-1
// maps to itself.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

// RFC 3629, section 4.
std::size_t LengthOfUtf8(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = at(0);
  if (lead < 0x80) return 1;
  const std::size_t length = CharacterLength(bytes[0]);
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(bytes[i])) return 0;
  }
  const unsigned char second = at(1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool outside = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
  return overlong || outside ? 0 : length;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = LengthOfUtf8(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

// A byte-order mark; else one of the first two bytes is zero, as in the UTF-16 of an ASCII letter.
bool IsUtf16(std::string_view bytes) {
  if (bytes.size() < 2) return false;
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
  return (bytes[0] == '\0') != (bytes[1] == '\0');
}

std::string DecodeFileText(std::string_view bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (IsUtf8(bytes)) {
    if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
    return std::string(bytes);
  }
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool special = byte >= 0x80 && byte < 0xA0;
    AppendUtf8(text, special ? kWindows1252[byte - 0x80U] : byte);
  }
  return text;
}

}  // namespace orvik
