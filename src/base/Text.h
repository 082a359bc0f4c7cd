// Small helpers on text. Text is UTF-8 throughout.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// `text` without leading and trailing blanks (only the space character counts as blank; tabs and
// line ends are text).
std::string_view Trim(std::string_view text);

// Comparisons that ignore the case of the letters A to Z only, whatever the locale: they compare
// names of stations, columns, keys and file extensions.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning);
bool EndsWithIgnoringCase(std::string_view text, std::string_view ending);

// The text on one line: each CR LF, CR and LF becomes a blank.
std::string FoldLineEnds(std::string_view text);

}  // namespace orvik
