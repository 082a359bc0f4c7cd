// A picture of one colour.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Surface.h"

namespace orvik::test {

inline Picture FilledPicture(Size size, std::uint32_t colour) {
  return {size, std::vector<std::uint32_t>(
                    static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                    colour)};
}

}  // namespace orvik::test
