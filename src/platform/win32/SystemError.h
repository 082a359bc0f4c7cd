// The system's last error as an exception.
#pragma once

namespace orvik {

// Throws std::system_error with the sentence and the system's own reason.
[[noreturn]] void ThrowSystemError(const char* sentence);

}  // namespace orvik
