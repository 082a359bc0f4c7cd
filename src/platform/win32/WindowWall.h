// The wall around every window procedure: no exception passes through it.
#pragma once

#include <windows.h>

namespace orvik {

// Shows the sentence of the exception that is being handled in a message box titled "Error" over
// the window. While one is read, further ones of the same top-level window are left out.
void ShowException(HWND window) noexcept;

// The result of `body`, or 0 where it threw.
template <typename Body>
LRESULT WindowWall(HWND window, Body&& body) noexcept {
  try {
    return body();
  } catch (...) {
    ShowException(window);
    return 0;
  }
}

}  // namespace orvik
