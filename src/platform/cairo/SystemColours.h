// Colours as red, green and blue, for back ends without a system to ask.
#pragma once

#include <cstdint>

#include "platform/Colour.h"

namespace orvik {

// 0x00RRGGBB. System colours are those of a plain, light desktop. Throws std::invalid_argument for
// one that Colour.h does not name: black in its place could be mistaken for the intended colour.
std::uint32_t RedGreenBlue(Colour colour);

}  // namespace orvik
