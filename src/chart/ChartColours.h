// The chart's colours. Drawn for white paper: the marks that flip pixels are red there.
#pragma once

#include <array>
#include <cstddef>

#include "platform/Colour.h"

namespace orvik {

inline constexpr Colour kPaper = 0xFFFFFF;
inline constexpr Colour kGridLines = 0xE0E0E0;  // seen where it is looked for, under every curve

// Neighbouring curves take turns between a dark and a medium colour of another hue: they stay apart
// in grey print and for eyes that confuse red with green or blue with yellow.
inline constexpr std::array<Colour, 6> kCurveColours = {
    0x7A2E00,  // dark blue
    0x0060D8,  // orange
    0x7B1E5A,  // purple
    0x6E9400,  // green
    0x1A1A70,  // dark red
    0xD88A1E,  // sky blue
};

// Of the curve at this place of the set, 0 for the first.
constexpr Colour CurveColour(std::size_t index) {
  return kCurveColours[index % kCurveColours.size()];
}

}  // namespace orvik
