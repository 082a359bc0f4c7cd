// A window to put controls into, and what a test needs to work them with real messages.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

#include "MemoryScreen.h"

namespace orvik::test {

inline constexpr std::chrono::seconds kDeadline{20};

// Handles the messages that wait for this thread.
inline void HandleMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

// Handles messages until it is so; false where it has not come about in time.
inline bool Until(const std::function<bool()>& isSo, std::chrono::seconds deadline = kDeadline) {
  const auto end = std::chrono::steady_clock::now() + deadline;
  while (std::chrono::steady_clock::now() < end) {
    HandleMessages();
    if (isSo()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return isSo();
}

// Makes the window the active one, and asks again where the window manager has had another mind
// meanwhile.
inline bool Activate(HWND window) {
  constexpr int kTries = 5;
  for (int i = 0; i < kTries; ++i) {
    ::SetForegroundWindow(window);
    if (Until([&] { return ::GetForegroundWindow() == window; }, kDeadline / kTries)) return true;
  }
  return false;
}

// A plain top-level window on the screen.
class ParentWindow {
 public:
  ParentWindow()
      : window_(::CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"Orvik test",
                                  WS_OVERLAPPEDWINDOW, 0, 0, 1100, 800, nullptr, nullptr,
                                  ::GetModuleHandleW(nullptr), nullptr)) {
    ::ShowWindow(window_, SW_SHOW);
    Until([&] { return ::IsWindowVisible(window_) != FALSE; });
  }
  ~ParentWindow() { Destroy(); }
  ParentWindow(const ParentWindow&) = delete;
  ParentWindow& operator=(const ParentWindow&) = delete;

  HWND Handle() const { return window_; }

  void Destroy() {
    if (window_) ::DestroyWindow(std::exchange(window_, nullptr));
  }

 private:
  HWND window_;
};

// What the window shows.
inline Picture PixelsOf(HWND window) {
  RECT inner{};
  ::GetClientRect(window, &inner);
  const MemoryScreen copy({static_cast<int>(inner.right), static_cast<int>(inner.bottom)});
  const WindowDc dc(window);
  ::BitBlt(copy.Dc(), 0, 0, inner.right, inner.bottom, dc.Get(), 0, 0, SRCCOPY);
  return copy.Pixels();
}

inline void PaintAll(HWND window) {
  ::InvalidateRect(window, nullptr, FALSE);
  ::UpdateWindow(window);
}

// A position as mouse messages carry it.
inline LPARAM At(int x, int y) {
  return static_cast<LPARAM>(
      static_cast<DWORD>(MAKELONG(static_cast<std::uint16_t>(x), static_cast<std::uint16_t>(y))));
}

}  // namespace orvik::test
