// The space around the texts of widgets, the same in every window; lengths for 96 dots per inch.
#pragma once

namespace orvik {

inline constexpr int kFieldPadding = 8;    // of a field above and below its lines of text, together
inline constexpr int kButtonPadding = 10;  // of a button above and below its caption, together
inline constexpr int kButtonSides = 28;    // of a button left and right of its caption, together

}  // namespace orvik
