#include "platform/win32/SystemError.h"

#include <windows.h>

#include <system_error>

namespace orvik {

void ThrowSystemError(const char* sentence) {
  throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), sentence);
}

}  // namespace orvik
