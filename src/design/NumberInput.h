// Numbers as the fields hold them: text, read afresh on every use, in single precision.
#pragma once

#include <optional>
#include <string_view>

#include "design/Messages.h"

namespace orvik {

class NumericError;

// True when the text, without the blanks around it, is not empty and is numeric.
bool IsDefinedNumber(std::string_view text);

// The numeric text in single precision. Throws OverflowError where single precision cannot hold it.
float ReadSingle(std::string_view text);

// Which values of a quantity make sense.
enum class Range : unsigned char {
  AboveZero,
  FromZero,  // zero passes, although the sentence speaks of "greater than zero"
  UpToOne,   // above zero, at most one
  AnyNumber,
};

// A quantity that a calculation needs, and the messages for values that do not pass.
struct QuantityCheck {
  MessageId empty;
  MessageId notNumeric;
  Range range = Range::AnyNumber;
  MessageId outOfRange = MessageId::None;
};

// The number in `text` if it passes (empty, numeric, range: in this order); else nothing, and the
// reason in `message`. Throws OverflowError for a number in range that single precision cannot
// hold.
std::optional<float> CheckQuantity(std::string_view text, const QuantityCheck& check,
                                   Message& message);

// The message for a numeric fault that the checks could not foresee.
Message NumericFaultMessage(const NumericError& fault);

}  // namespace orvik
