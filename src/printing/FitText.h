// Text in the width that there is for it. No character is torn: an accent or a joiner stays with
// the letter before it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvik {

// The width of a text in the font in which it will be printed.
using TextWidth = std::function<float(std::string_view text)>;

// The text in lines that are not wider than `width`, broken at blanks, and within a word only where
// the word alone is wider. All of the text is there but for the blanks at the breaks; a character
// that is itself too wide gets a line of its own. At least one line, which may be empty.
std::vector<std::string> WrapText(std::string_view text, float width, const TextWidth& widthOf);

// The text on one line, its end replaced by "..." where it is wider.
std::string FitText(std::string_view text, float width, const TextWidth& widthOf);

}  // namespace orvik
