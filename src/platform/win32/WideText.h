// UTF-8, the module's text, and UTF-16, the system's.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Bytes or units that are no character become U+FFFD. Both throw std::length_error beyond two
// billion of them.
std::wstring WideFromUtf8(std::string_view text);
std::string Utf8FromWide(std::wstring_view text);

}  // namespace orvik
