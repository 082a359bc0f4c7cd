#include "platform/win32/ChildWindow.h"

#include <utility>

#include "platform/win32/SystemError.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowWall.h"

namespace orvik {

ChildWindow::ChildWindow(HINSTANCE module, HWND parent, const ChildStyle& style)
    : window_(::CreateWindowExW(style.exStyle, style.className, L"",
                                WS_CHILD | WS_VISIBLE | style.style, 0, 0, 0, 0, parent, nullptr,
                                module, nullptr)) {
  if (!window_) ThrowSystemError("A control cannot be made");
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  const LONG_PTR before =
      ::SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  system_ = reinterpret_cast<WNDPROC>(before);
}

ChildWindow::~ChildWindow() {
  if (!window_) return;
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);  // messages that still arrive are not for us
  ::SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_));
  ::DestroyWindow(window_);
}

std::string ChildWindow::WindowText() const {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window_)), L'\0');
  // One unit more for the terminator, which the string has room for.
  const int length = ::GetWindowTextW(window_, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return Utf8FromWide(text);
}

void ChildWindow::WindowText(std::string_view text) {
  ::SetWindowTextW(window_, WideFromUtf8(text).c_str());
}

LRESULT CALLBACK ChildWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* child = reinterpret_cast<ChildWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!child) return ::DefWindowProcW(window, message, wParam, lParam);
  return WindowWall(window, [&] { return child->Answer(message, wParam, lParam); });
}

LRESULT ChildWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_;
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_));
    window_ = nullptr;
  }
  return ::CallWindowProcW(system_, window, message, wParam, lParam);
}

}  // namespace orvik
