#include "design/NumberInput.h"

#include <cmath>

#include "base/NumberText.h"
#include "base/Rounding.h"
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

float Quotient(float dividend, float divisor) {
  if (divisor == 0) throw DivisionByZeroError();
  return dividend / divisor;
}

std::optional<float> CheckQuantity(std::string_view text, const QuantityCheck& check,
                                   Message& message) {
  const std::string_view trimmed = Trim(text);
  const auto refuse = [&](MessageId reason) {
    message = {reason};
    return std::nullopt;
  };
  if (trimmed.empty()) return refuse(check.empty);
  if (!IsNumericText(trimmed)) return refuse(check.notNumeric);
  const float value = ToSingle(ParseNumber(trimmed));
  if (!IsInRange(value, check.range)) return refuse(check.outOfRange);
  return Held(value);
}

Message NumericFaultMessage(const NumericError& fault) {
  const bool isDivision = dynamic_cast<const DivisionByZeroError*>(&fault) != nullptr;
  return {isDivision ? MessageId::DivisionByZero : MessageId::NumberTooLarge};
}

}  // namespace orvik
