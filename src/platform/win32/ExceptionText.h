// What an exception says to the user.
#pragma once

#include <string>

namespace orvik {

// The sentence of the exception that is being handled.
std::wstring ExceptionText();

}  // namespace orvik
