// Small helpers on text. Text is UTF-8 throughout.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// `text` without its leading and trailing blanks (the space character only; tabs and line ends are
// text).
std::string_view Trim(std::string_view text);

// Comparisons in which the letters A to Z equal a to z, and no others whatever the locale: what is
// compared are names of stations, columns, keys and file extensions.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning);
bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

// The text on one line: each CR LF, CR and LF becomes a blank.
std::string FoldLineEnds(std::string_view text);

}  // namespace orvik
