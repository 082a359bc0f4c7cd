#include "platform/win32/NativeTimer.h"

#include <utility>

#include "platform/win32/SystemError.h"
#include "platform/win32/WindowWall.h"

namespace orvik {
namespace {

constexpr UINT_PTR kTimer = 1;

}  // namespace

void NativeTimer::Start(int milliseconds) {
  Stop();
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Procedure;
  description.hInstance = module_;
  description.lpszClassName = L"OrvikTimer";
  class_.emplace(description);
  window_ = ::CreateWindowExW(0, class_->Name(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, module_,
                              nullptr);
  if (!window_) ThrowSystemError("A timer cannot be made");
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  ::SetTimer(window_, kTimer, static_cast<UINT>(milliseconds), nullptr);
}

void NativeTimer::Stop() {
  if (!window_) return;
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  ::DestroyWindow(std::exchange(window_, nullptr));  // its timer goes with it
  class_.reset();
}

LRESULT CALLBACK NativeTimer::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* timer = reinterpret_cast<NativeTimer*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!timer || message != WM_TIMER) return ::DefWindowProcW(window, message, wParam, lParam);
  return WindowWall(window, [&]() -> LRESULT {
    const std::function<void()> tick = timer->OnTick;  // the handler may destroy the timer
    if (tick) tick();
    return 0;
  });
}

}  // namespace orvik
