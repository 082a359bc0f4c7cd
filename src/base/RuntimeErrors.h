// The numeric faults that an operation throws instead of returning a wrong number.
#pragma once

#include <cstdint>
#include <stdexcept>

namespace orvik {

enum class NumericFault : std::uint8_t { Overflow, DivisionByZero };

// The base of all numeric faults, so that one handler catches every kind.
class NumericError : public std::runtime_error {
 public:
  NumericFault Kind() const { return kind_; }

 protected:
  NumericError(NumericFault kind, const char* what) : std::runtime_error(what), kind_(kind) {}

 private:
  NumericFault kind_;
};

// A value does not fit the type that must hold it (a pixel beyond 16 bits, a number that is
// infinite).
class OverflowError : public NumericError {
 public:
  OverflowError() : NumericError(NumericFault::Overflow, "Overflow") {}
};

// A divisor is zero where a quotient is needed.
class DivisionByZeroError : public NumericError {
 public:
  DivisionByZeroError() : NumericError(NumericFault::DivisionByZero, "Division by zero") {}
};

// An index lies outside a table.
class SubscriptError : public std::out_of_range {
 public:
  SubscriptError() : std::out_of_range("Subscript out of range") {}
};

}  // namespace orvik
