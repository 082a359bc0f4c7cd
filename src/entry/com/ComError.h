// A failed COM call inside the core of an operation; the wall turns it back into its HRESULT.
#pragma once

#include <windows.h>

#include <stdexcept>
#include <string>

namespace orvik::com {

class ComError : public std::runtime_error {
 public:
  ComError(HRESULT code, const std::string& sentence) : std::runtime_error(sentence), code_(code) {}
  HRESULT Code() const { return code_; }

 private:
  HRESULT code_;
};

// Throws for a failed `result`; `sentence` says what could not be done.
inline void Check(HRESULT result, const char* sentence) {
  if (FAILED(result)) throw ComError(result, sentence);
}

// Throws E_POINTER for an argument that the caller must give a place for.
inline void Require(const void* argument, const char* name) {
  if (!argument) {
    throw ComError(E_POINTER, std::string("No place was given for the argument ") + name + ".");
  }
}

}  // namespace orvik::com
