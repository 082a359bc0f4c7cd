// Rounding to whole numbers: nearest, and a half to the even neighbour.
#pragma once

#include <cstdint>

namespace orvik {

// The whole number nearest to `value`; 2.5 gives 2 and 3.5 gives 4. Independent of the processor's
// rounding mode. Infinities and not-a-number are returned as they are.
double RoundHalfToEven(double value);

// `value` rounded half to even as a 16-bit integer. Throws OverflowError beyond -32768...32767 and
// for not-a-number.
std::int16_t ToInt16(double value);

// `value` rounded to single precision; infinite where it is too large for that.
float ToSingle(double value);

}  // namespace orvik
