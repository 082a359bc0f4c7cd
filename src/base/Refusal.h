// The input does not allow a result: it is implausible, or no result keeps the limits.
#pragma once

#include <stdexcept>

namespace orvik {

// what() is the sentence for the user.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orvik
