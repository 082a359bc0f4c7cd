// What the window of a drawn control offers to assistive programs: the object that they query, and
// the events that report a change to them.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/win32/ControlAccessible.h"

namespace orvik {

class AccessibleWindow {
 public:
  explicit AccessibleWindow(const ControlHost& control) : control_(control) {}
  AccessibleWindow(const AccessibleWindow&) = delete;
  AccessibleWindow& operator=(const AccessibleWindow&) = delete;
  ~AccessibleWindow() { Close(); }

  // The answer to WM_GETOBJECT; nothing where the system's own applies. The object is made for the
  // first caller.
  std::optional<LRESULT> AnswerObject(HWND window, WPARAM wParam, LPARAM object);

  // Raises an event for everything in which the control describes itself differently than at the
  // call before. The first call raises none.
  void RaiseEvents(HWND window);

  // The window is being destroyed.
  void Close();

 private:
  const ControlHost& control_;
  ComPtr<ControlAccessible> object_;
  std::optional<Spoken> announced_;
};

}  // namespace orvik
