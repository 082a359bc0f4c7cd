// State and position of a widget's window, whatever kind of widget it is. Of no window (null) each
// reads as false and does nothing.
#pragma once

#include <windows.h>

namespace orvik {

inline bool HasStyle(HWND window, LONG_PTR style) {
  return (::GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

// Whether the window itself is shown, whatever its parents are.
inline bool IsShown(HWND window) {
  return HasStyle(window, WS_VISIBLE);
}

inline void Show(HWND window, bool visible) {
  ::ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
}

inline bool IsEnabled(HWND window) {
  return ::IsWindowEnabled(window) != FALSE;
}

inline void Enable(HWND window, bool enabled) {
  ::EnableWindow(window, enabled ? TRUE : FALSE);
}

// Pixels of the parent; of the screen for a window without one.
inline void Place(HWND window, int left, int top, int width, int height) {
  ::SetWindowPos(window, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace orvik
