#include "base/Rounding.h"

#include <cmath>
#include <limits>

#include "base/RuntimeErrors.h"

namespace orvik {

double RoundHalfToEven(double value) {
  const double below = std::floor(value);
  const double fraction =
      value - below;  // exact: both share the exponent range where fractions exist
  if (!(fraction >= 0.5)) return std::isfinite(value) ? below : value;
  if (fraction > 0.5) return below + 1.0;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

std::int16_t ToInt16(double value) {
  const double rounded = RoundHalfToEven(value);
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    throw OverflowError();
  }
  return static_cast<std::int16_t>(rounded);
}

float ToSingle(double value) {
  return static_cast<float>(value);
}

}  // namespace orvik
