// A calculation that must not be made, or has no result within its limits.
#pragma once

#include <stdexcept>

namespace orvik {

// what() is the sentence for the user.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orvik
