// Division that faults where there is no quotient.
#pragma once

#include <concepts>

#include "base/RuntimeErrors.h"

namespace orvik {

// Dividend / divisor in their own precision. Throws DivisionByZeroError.
template <std::floating_point Number>
Number Quotient(Number dividend, Number divisor) {
  if (divisor == 0) throw DivisionByZeroError();
  return dividend / divisor;
}

}  // namespace orvik
