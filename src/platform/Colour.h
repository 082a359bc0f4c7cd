// Colours in the byte order of Windows: 0x00BBGGRR, or 0x80000000 + the number of a system colour.
#pragma once

#include <cstdint>

namespace orvik {

using Colour = std::uint32_t;

inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kRed = 0x0000FF;

// System colours that the drawn controls use.
inline constexpr Colour kWindowBackground = 0x80000005;
inline constexpr Colour kWindowText = 0x80000008;
inline constexpr Colour kHighlight = 0x8000000D;  // with the next one on it
inline constexpr Colour kHighlightText = 0x8000000E;
inline constexpr Colour kButtonFace = 0x8000000F;
inline constexpr Colour kButtonShadow = 0x80000010;
inline constexpr Colour kGreyText = 0x80000011;
inline constexpr Colour kButtonText = 0x80000012;
inline constexpr Colour k3DHighlight = 0x80000014;
inline constexpr Colour k3DDarkShadow = 0x80000015;
inline constexpr Colour k3DLight = 0x80000016;
inline constexpr Colour kInfoText = 0x80000017;  // on the next one
inline constexpr Colour kInfoBackground = 0x80000018;

}  // namespace orvik
