#include "platform/win32/WindowClass.h"

#include "platform/win32/SystemError.h"

namespace orvik {

WindowClass::WindowClass(const WNDCLASSEXW& description)
    : name_(description.lpszClassName), module_(description.hInstance) {
  if (::RegisterClassExW(&description) != 0) return;
  if (::GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
    ThrowSystemError("A window class cannot be registered");
  }
}

// The system refuses while a window of the class exists.
WindowClass::~WindowClass() {
  ::UnregisterClassW(name_.c_str(), module_);
}

}  // namespace orvik
