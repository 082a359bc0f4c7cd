// A window that comes to screens of other scalings, and is looked at there.
#pragma once

#include "FormUser.h"

namespace orvik::test {

// What the system sends when the window comes to a screen of another scaling.
inline void ComeToScaling(HWND window, int dpi, SIZE size) {
  RECT suggested{40, 40, 40 + size.cx, 40 + size.cy};
  ::SendMessageW(window, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
                 reinterpret_cast<LPARAM>(&suggested));
}

// Every pixel below the window is painted before it is looked at.
inline void WaitUntilPainted(const FormUser& user) {
  const HWND window = user.Window();
  ::SendMessageW(window, WM_NULL, 0, 0);
  user.Until([&] { return ::GetUpdateRect(window, nullptr, FALSE) == FALSE; });
  ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  ::SendMessageW(window, WM_NULL, 0, 0);
}

}  // namespace orvik::test
