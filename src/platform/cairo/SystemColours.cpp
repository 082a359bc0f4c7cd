#include "platform/cairo/SystemColours.h"

#include <stdexcept>

namespace orvik {
namespace {

std::uint32_t OfSystem(Colour colour) {
  switch (colour) {
    case kWindowBackground:
    case k3DHighlight:
    case kHighlightText:
      return 0xFFFFFF;
    case kHighlight:
      return 0x0078D7;
    case kInfoBackground:
      return 0xFFFFE1;
    case kGreyText:
      return 0x6D6D6D;
    case kButtonFace:
      return 0xF0F0F0;
    case kButtonShadow:
      return 0xA0A0A0;
    case k3DDarkShadow:
      return 0x696969;
    case k3DLight:
      return 0xE3E3E3;
    case kWindowText:
    case kButtonText:
    case kInfoText:
      return 0x000000;
    default:
      throw std::invalid_argument("There is no such system colour.");
  }
}

}  // namespace

std::uint32_t RedGreenBlue(Colour colour) {
  constexpr Colour kSystem = 0x80000000;
  if ((colour & kSystem) != 0) return OfSystem(colour);
  return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

}  // namespace orvik
