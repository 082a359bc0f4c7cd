// From the bytes of a text file to UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvik {

// The length of the well-formed UTF-8 sequence at the front of `bytes`, which are not empty; 0
// where there is none.
std::size_t LengthOfUtf8(std::string_view bytes);

// True when `bytes` are well-formed UTF-8 (no overlong forms, no surrogates, nothing above
// U+10FFFF).
bool IsUtf8(std::string_view bytes);

// True when the text looks like UTF-16, which no file of ours has.
bool IsUtf16(std::string_view bytes);

// The text of a file as UTF-8: a byte-order mark is skipped; bytes that are not UTF-8 are read as
// Windows-1252, in which every byte is a character (the five unassigned ones become the control
// characters with the same number).
std::string DecodeFileText(std::string_view bytes);

}  // namespace orvik
