// The numeric faults that an operation raises to its caller instead of answering with a wrong
// number.
#pragma once

#include <stdexcept>

namespace orvik {

// Base of all of them, so that a wall can catch the kind.
class NumericError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A value does not fit the type that must hold it (a pixel beyond 16 bits, a number that is
// infinite).
class OverflowError : public NumericError {
 public:
  OverflowError() : NumericError("Overflow") {}
};

// A divisor is zero where a quotient is needed.
class DivisionByZeroError : public NumericError {
 public:
  DivisionByZeroError() : NumericError("Division by zero") {}
};

// An index lies outside a table.
class SubscriptError : public std::out_of_range {
 public:
  SubscriptError() : std::out_of_range("Subscript out of range") {}
};

}  // namespace orvik
