// A file that cannot be read as what it should be, or cannot be written.
#pragma once

#include <stdexcept>

namespace orvik {

// what() is the sentence for the user.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orvik
