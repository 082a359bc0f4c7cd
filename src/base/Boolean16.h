// The Boolean of the controls' properties: 16 bits, True is -1 and False is 0.
#pragma once

#include <cstdint>

namespace orvik {

using Boolean16 = std::int16_t;

inline constexpr Boolean16 kTrue16 = -1;
inline constexpr Boolean16 kFalse16 = 0;

constexpr Boolean16 ToBoolean16(bool value) {
  return value ? kTrue16 : kFalse16;
}

}  // namespace orvik
