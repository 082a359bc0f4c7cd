// What the window of a drawn control has for assistive programs: the object by which they ask, and
// the events by which they hear of a change.
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

  // The answer to WM_GETOBJECT; nothing where the system's own is to be given. The object is made
  // for the first who asks.
  std::optional<LRESULT> AnswerObject(HWND window, WPARAM wParam, LPARAM object);

  // Raises the events for what the control tells otherwise than when this was last called; at the
  // first time none.
  void TellChanges(HWND window);

  // The window goes.
  void Close();

 private:
  const ControlHost& control_;
  ComPtr<ControlAccessible> object_;
  std::optional<Spoken> told_;
};

}  // namespace orvik
