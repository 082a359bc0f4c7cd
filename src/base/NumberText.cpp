#include "base/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "base/RuntimeErrors.h"
#include "base/Text.h"

namespace orvik {
namespace {

constexpr int kSmallestDecimalExponent = -7;  // smaller magnitudes are written in exponent form

// Significant digits without trailing zeros, the exponent of the first one, and the sign.
struct Decimal {
  bool negative;
  std::string digits;
  int exponent;
};

template <typename Number>
Decimal ToDecimal(Number value, int significantDigits) {
  // "-d.ddddde+xx": the rounding is exact (round half to even on the binary value).
  std::array<char, 40> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                 std::chars_format::scientific, significantDigits - 1)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const auto e = text.find('e');
  Decimal result{std::signbit(value), std::string(1, text[0]), 0};
  if (e > 2) result.digits += text.substr(2, e - 2);
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  const std::string_view exponent = text.substr(text[e + 1] == '+' ? e + 2 : e + 1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.exponent);
  return result;
}

// Single precision in seven digits, the form of nearly every number that is shown: scaled to a
// whole number of seven digits in double precision. The scaled value is off by less than 1E-9, so
// where it is not near the middle between two whole numbers its rounding is that of the exact
// value. Nothing where that is not certain, and for magnitudes that are far from 1.
std::optional<Decimal> SevenDigits(float value) {
  constexpr double kLeast = 1e6;  // of seven digits
  constexpr double kMost = 1e7;
  constexpr double kUncertain = 1e-6;
  constexpr std::array kPowersOfTen{1e0, 1e1, 1e2, 1e3,  1e4,  1e5,  1e6,
                                    1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13};
  const double magnitude = std::fabs(static_cast<double>(value));
  if (!(magnitude >= 1e-6 && magnitude < 1e6)) return std::nullopt;
  std::size_t power = 1;  // by which the value is scaled; the first that gives seven digits
  while (magnitude * kPowersOfTen[power] < kLeast - kUncertain) ++power;
  const double scaled = magnitude * kPowersOfTen[power];
  const double whole = std::floor(scaled);
  const double fraction = scaled - whole;
  if (scaled < kLeast + kUncertain || std::fabs(fraction - 0.5) < kUncertain) return std::nullopt;
  const double rounded = whole + (fraction > 0.5 ? 1 : 0);
  if (rounded >= kMost) return std::nullopt;
  std::array<char, 7> digits{};
  auto rest = static_cast<std::uint32_t>(rounded);
  for (std::size_t i = digits.size(); i-- > 0; rest /= 10) {
    digits[i] = static_cast<char>('0' + rest % 10);
  }
  std::size_t count = digits.size();
  while (digits[count - 1] == '0') --count;
  return Decimal{std::signbit(value), std::string(digits.data(), count),
                 6 - static_cast<int>(power)};
}

std::optional<Decimal> SevenDigits(double) {
  return std::nullopt;
}

std::string ExponentForm(const Decimal& number) {
  std::string text = number.digits.substr(0, 1);
  if (number.digits.size() > 1) text += "." + number.digits.substr(1);
  const int magnitude = std::abs(number.exponent);
  text += number.exponent < 0 ? "E-" : "E+";
  if (magnitude < 10) text += '0';
  return text + std::to_string(magnitude);
}

std::string DecimalForm(const Decimal& number) {
  const int count = static_cast<int>(number.digits.size());
  if (number.exponent < 0) {
    return "." + std::string(static_cast<std::size_t>(-number.exponent - 1), '0') + number.digits;
  }
  if (count <= number.exponent + 1) {
    return number.digits + std::string(static_cast<std::size_t>(number.exponent + 1 - count), '0');
  }
  const auto whole = static_cast<std::size_t>(number.exponent) + 1;
  return number.digits.substr(0, whole) + "." + number.digits.substr(whole);
}

template <typename Number>
std::string Format(Number value, int significantDigits) {
  if (!std::isfinite(value)) throw OverflowError();
  if (value == 0) return "0";
  const auto quick = SevenDigits(value);
  const Decimal number = quick ? *quick : ToDecimal(value, significantDigits);
  const bool plain =
      number.exponent >= kSmallestDecimalExponent && number.exponent < significantDigits;
  return (number.negative ? "-" : "") + (plain ? DecimalForm(number) : ExponentForm(number));
}

template <typename Number>
std::string Shortest(Number value) {
  if (!std::isfinite(value)) throw OverflowError();
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return {buffer.data(), end};
}

// For the text of a number.
std::string WithZeroBeforePeriod(std::string text) {
  if (text.front() == '.') text.insert(0, 1, '0');
  return text;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The parts of a numeric prefix: [begin, end) as std::from_chars reads it, the sign taken off.
struct Prefix {
  bool negative = false;
  std::string_view number;   // empty when there is no numeric prefix
  std::size_t consumed = 0;  // characters up to the prefix's end, leading blanks and sign included
};

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

Prefix NumericPrefix(std::string_view text) {
  Prefix prefix;
  std::size_t at = 0;
  while (at < text.size() && text[at] == ' ') ++at;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) prefix.negative = text[at++] == '-';
  const std::size_t begin = at;
  at = SkipDigits(text, at);
  std::size_t digits = at - begin;
  if (at < text.size() && text[at] == '.') {
    const std::size_t end = SkipDigits(text, at + 1);
    digits += end - at - 1;
    at = end;
  }
  if (digits == 0) return {};
  at = SkipExponent(text, at);
  prefix.number = text.substr(begin, at - begin);
  prefix.consumed = at;
  return prefix;
}

// True when a number that a double cannot hold is too large, false when it is too small.
// std::from_chars does not say which; the decimal exponent of the first significant digit does,
// since it is far from zero for every such number.
bool IsHuge(std::string_view number) {
  const auto e = number.find_first_of("eE");
  const std::string_view mantissa = number.substr(0, e);
  const auto first = mantissa.find_first_of("123456789");
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  double exponent = static_cast<double>(point) - static_cast<double>(first);
  if (e != std::string_view::npos) {
    std::string_view power = number.substr(e + 1);
    const bool negative = power.front() == '-';
    if (power.front() == '+' || power.front() == '-') power.remove_prefix(1);
    double magnitude = 0;
    for (const char c : power) magnitude = magnitude * 10 + (c - '0');
    exponent += negative ? -magnitude : magnitude;
  }
  return exponent > 0;
}

// The value of a plain decimal with few digits: a whole number below 2^53 and a power of ten are
// both exact, so their quotient is the nearest double, as std::from_chars gives it.
std::optional<double> ShortDecimal(std::string_view number) {
  constexpr std::size_t kMostCharacters = 16;  // 15 digits and a period
  constexpr std::array kPowersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (number.size() > kMostCharacters) return std::nullopt;
  std::int64_t digits = 0;
  std::size_t decimals = 0;
  std::size_t period = number.size();
  for (std::size_t i = 0; i < number.size(); ++i) {
    if (IsDigit(number[i])) {
      digits = digits * 10 + (number[i] - '0');
    } else if (number[i] == '.') {
      period = i;
    } else {
      return std::nullopt;  // an exponent
    }
  }
  const bool hasPeriod = period < number.size();
  if (hasPeriod) decimals = number.size() - period - 1;
  if (!hasPeriod && number.size() == kMostCharacters) return std::nullopt;
  return static_cast<double>(digits) / kPowersOfTen[decimals];
}

double ValueOf(const Prefix& prefix) {
  if (const auto value = ShortDecimal(prefix.number)) return prefix.negative ? -*value : *value;
  double value = 0;
  const auto* end = prefix.number.data() + prefix.number.size();
  const auto result = std::from_chars(prefix.number.data(), end, value);
  if (result.ec == std::errc::result_out_of_range) {
    value = IsHuge(prefix.number) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return prefix.negative ? -value : value;
}

}  // namespace

std::string ToDecimalText(float value) {
  return Format(value, std::numeric_limits<float>::digits10 + 1);
}

std::string ToDecimalText(double value) {
  return Format(value, std::numeric_limits<double>::digits10);
}

std::string AddZeroPrefix(std::string text) {
  return IsNumericText(text) ? WithZeroBeforePeriod(std::move(text)) : text;
}

std::string ConvertToString(float value) {
  return WithZeroBeforePeriod(ToDecimalText(value));
}

std::string ConvertToString(double value) {
  return WithZeroBeforePeriod(ToDecimalText(value));
}

std::string ToShortestText(float value) {
  return Shortest(value);
}

std::string ToShortestText(double value) {
  return Shortest(value);
}

std::string WithLeadingZeros(int value, std::size_t width) {
  const std::string digits = std::to_string(value);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string MonthDayYear(int month, int day, int year) {
  return WithLeadingZeros(month, 2) + "-" + WithLeadingZeros(day, 2) + "-" +
         WithLeadingZeros(year, 4);
}

double ParseNumber(std::string_view text) {
  const Prefix prefix = NumericPrefix(text);
  return prefix.number.empty() ? 0.0 : ValueOf(prefix);
}

std::optional<double> ParseNumericText(std::string_view text) {
  const Prefix prefix = NumericPrefix(text);
  if (prefix.number.empty() || !Trim(text.substr(prefix.consumed)).empty()) return std::nullopt;
  const double value = ValueOf(prefix);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

bool IsNumericText(std::string_view text) {
  return ParseNumericText(text).has_value();
}

bool IsWholeNumberText(std::string_view text) {
  text = Trim(text);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  return !text.empty() && SkipDigits(text, 0) == text.size();
}

std::optional<std::int16_t> ParseWholeNumber(std::string_view text) {
  if (!IsWholeNumberText(text)) return std::nullopt;
  const double value = ParseNumber(text);
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(value);
}

}  // namespace orvik
