#include "base/FixedText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/RuntimeErrors.h"

namespace orvik {

std::string FixedText(double value, int decimals) {
  if (!std::isfinite(value)) throw OverflowError();
  std::array<char, 400> buffer{};  // the largest double has 309 digits before its point
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::fixed, decimals)
                       .ptr;
  return {buffer.data(), end};
}

}  // namespace orvik
