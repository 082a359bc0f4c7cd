// Writes a station's curve file (".crv"), as engine/CurveFile.h reads it.
#pragma once

#include <string>

namespace orvik {

struct CurveSet;

// Coefficients are written with this many decimals: enough for 0.00001 in/day on the curve, and few
// enough to hide the last bit, in which the logarithms of systems differ.
inline constexpr int kCoefficientDecimals = 6;

// The number that a coefficient reads back as.
double RoundCoefficient(double value);

// The bytes of the file, lines ended by CR LF. Numbers that are not coefficients are written with
// up to 15 significant digits. Throws OverflowError for a number that is not finite.
std::string CurveFileText(const CurveSet& set);

}  // namespace orvik
