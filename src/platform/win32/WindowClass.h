// A window class of a module, unregistered with the last window that uses it, so that the module
// can be unloaded and loaded again.
#pragma once

#include <windows.h>

#include <string>

namespace orvik {

class WindowClass {
 public:
  // Uses the class registered under this name and module, or registers it. Throws std::system_error
  // where that fails.
  explicit WindowClass(const WNDCLASSEXW& description);
  ~WindowClass();
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;

  const wchar_t* Name() const { return name_.c_str(); }
  HINSTANCE Module() const { return module_; }

 private:
  std::wstring name_;
  HINSTANCE module_;
};

}  // namespace orvik
