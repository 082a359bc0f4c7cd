#include "design/NumberInput.h"

#include <cmath>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "base/Text.h"

namespace orvik {
namespace {

bool IsInRange(float value, Range range) {
  switch (range) {
    case Range::AboveZero:
      return value > 0;
    case Range::FromZero:
      return value >= 0;
    case Range::UpToOne:
      return 0 < value && value <= 1;
    case Range::AnyNumber:
      break;
  }
  return true;
}

float Held(float value) {
  if (!std::isfinite(value)) throw OverflowError();
  return value;
}

}  // namespace

bool IsDefinedNumber(std::string_view text) {
  return IsNumericText(Trim(text));
}

float ReadSingle(std::string_view text) {
  return Held(ToSingle(ParseNumber(text)));
}

std::optional<float> CheckQuantity(std::string_view text, const QuantityCheck& check,
                                   Message& message) {
  const std::string_view trimmed = Trim(text);
  const auto refuse = [&](MessageId reason) {
    message = {reason};
    return std::nullopt;
  };
  if (trimmed.empty()) return refuse(check.empty);
  const auto number = ParseNumericText(trimmed);
  if (!number) return refuse(check.notNumeric);
  const float value = ToSingle(*number);
  if (!IsInRange(value, check.range)) return refuse(check.outOfRange);
  return Held(value);
}

Message NumericFaultMessage(const NumericError& fault) {
  switch (fault.Kind()) {
    case NumericFault::Overflow:
      return {MessageId::NumberTooLarge};
    case NumericFault::DivisionByZero:
      break;
  }
  return {MessageId::DivisionByZero};
}

}  // namespace orvik
