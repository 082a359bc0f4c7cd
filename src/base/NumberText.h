// Numbers to text and text to numbers. Independent of the locale: the decimal mark is a period,
// always.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvik {

// The plain decimal text of a number: at most 7 (single) or 15 (double) significant digits, no
// trailing zeros, a fraction without its leading zero (".25", "-.25"). Numbers whose rounded
// magnitude is below 1E-7, or at least 1E+7 (single) or 1E+15 (double), are in exponent form with a
// sign and at least two digits ("1.25E+09", "3E-08"). Zero is "0", never "-0". Throws OverflowError
// for infinities and not-a-number, which are never shown.
std::string ToDecimalText(float value);
std::string ToDecimalText(double value);

// "0" in front of a numeric text that begins with a period; any other text as it is ("-.5" stays).
std::string AddZeroPrefix(std::string text);

// The number as every field, message and report shows it: ToDecimalText, then AddZeroPrefix.
std::string ConvertToString(float value);
std::string ConvertToString(double value);

// The shortest text that reads back as the same number. Throws OverflowError as above.
std::string ToShortestText(float value);
std::string ToShortestText(double value);

// The digits of a number that is not negative, with zeros in front up to `width` characters; a
// longer number keeps all its digits.
std::string WithLeadingZeros(int value, std::size_t width);

// A date as fields and reports show it: "11-21-2026".
std::string MonthDayYear(int month, int day, int year);

// The value of the longest numeric prefix (blanks, sign, digits with one period, exponent), 0 when
// there is none. Values beyond the range of a double are infinite, values too small for one are 0.
double ParseNumber(std::string_view text);

// True when the whole text reads as a finite number: blanks around it, a sign, digits with one
// period, an exponent.
bool IsNumericText(std::string_view text);

// The value of such a text; nothing where it is none.
std::optional<double> ParseNumericText(std::string_view text);

// True when the whole text is a sign (optional) and decimal digits, blanks around them allowed.
bool IsWholeNumberText(std::string_view text);

// The 16-bit value of a whole-number text; nothing when the text is not one or the value does not
// fit.
std::optional<std::int16_t> ParseWholeNumber(std::string_view text);

}  // namespace orvik
