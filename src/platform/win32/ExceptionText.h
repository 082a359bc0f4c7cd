// What the user is shown of an exception.
#pragma once

#include <string>

namespace orvik {

// The sentence of the exception that is being handled.
std::wstring ExceptionText();

}  // namespace orvik
