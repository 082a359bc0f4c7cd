// Small helpers on text. Text is UTF-8 throughout.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// `text` without its leading and trailing blanks (the space character only; tabs and line ends are
// text).
std::string_view Trim(std::string_view text);

// The text on one line: each CR LF, CR and LF becomes a blank.
std::string FoldLineEnds(std::string_view text);

}  // namespace orvik
