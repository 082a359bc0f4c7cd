// The screen's scaling. Systems without a newer call are served by the older one.
#pragma once

#include <windows.h>

namespace orvik {

// While this lives, windows of this thread are made aware of each monitor's scaling, whatever the
// host's own awareness is. Does nothing where the system cannot mix them.
class ThreadDpiScope {
 public:
  ThreadDpiScope();
  ~ThreadDpiScope();
  ThreadDpiScope(const ThreadDpiScope&) = delete;
  ThreadDpiScope& operator=(const ThreadDpiScope&) = delete;

 private:
  HANDLE before_ = nullptr;
};

// Dots per inch of the window's monitor; 96 is 100 %.
int DpiOf(HWND window);

// The system's measures and fonts of frames, menus and messages at this scaling.
NONCLIENTMETRICSW NonClientMetrics(int dpi);

// The outer size of a window whose inner area has this size.
SIZE OuterSize(HWND window, SIZE inner, int dpi);

}  // namespace orvik
