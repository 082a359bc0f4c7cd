// Text from files and arguments, made fit for a terminal and for sentences that quote it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvik {

// The longest line that is shown of anything, and the longest part of a file's content that a
// sentence quotes, in characters.
inline constexpr std::size_t kMostShown = 1000;
inline constexpr std::size_t kMostQuoted = 80;

// The text on one line: what a terminal would obey becomes a blank (control characters, and marks
// that turn the direction of writing), bytes that are not UTF-8 become U+FFFD. After `most`
// characters it ends with "...".
std::string PrintableText(std::string_view text, std::size_t most = kMostShown);

// A part of a file's content as a sentence quotes it.
std::string Quotable(std::string_view text);

}  // namespace orvik
