#include "platform/win32/NativePanel.h"

#include <algorithm>
#include <utility>

#include "platform/win32/GdiHandles.h"
#include "platform/win32/GdiSurface.h"
#include "platform/win32/Reflection.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WindowState.h"
#include "platform/win32/WindowWall.h"

namespace orvik {

NativePanel::NativePanel(HINSTANCE module, HWND parent) : class_(Describe(module)) {
  window_ = ::CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_NOINHERITLAYOUT, class_.Name(), L"",
                              WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                              parent, nullptr, module, nullptr);
  if (!window_) ThrowSystemError("A page cannot be made");
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

NativePanel::~NativePanel() {
  if (!window_) return;
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  ::DestroyWindow(window_);
}

WNDCLASSEXW NativePanel::Describe(HINSTANCE module) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Procedure;
  description.hInstance = module;
  description.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  description.lpszClassName = L"OrvikPanel";
  return description;
}

// --- As a widget ---

bool NativePanel::Visible() const {
  return IsShown(window_);
}

void NativePanel::Visible(bool visible) {
  if (visible == Visible()) return;
  Show(window_, visible);
  HandFocusOn(visible);  // no focus returns to a page that is hidden already
  if (visible && OnShow) OnShow();
}

void NativePanel::HandFocusOn(bool visible) const {
  const HWND top = ::GetAncestor(window_, GA_ROOT);
  const HWND focus = ::GetFocus();
  if (!visible && ::IsChild(window_, focus)) ::SetFocus(top);
  if (visible && focus == top) ::SetFocus(::GetNextDlgTabItem(window_, nullptr, FALSE));
}

bool NativePanel::Enabled() const {
  return IsEnabled(window_);
}

void NativePanel::Enabled(bool enabled) {
  Enable(window_, enabled);
}

void NativePanel::Move(int left, int top, int width, int height) {
  Place(window_, left, top, width, height);
}

// --- Messages ---

LRESULT CALLBACK NativePanel::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* panel = reinterpret_cast<NativePanel*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!panel) return ::DefWindowProcW(window, message, wParam, lParam);
  return WindowWall(window, [&] { return panel->Answer(message, wParam, lParam); });
}

LRESULT NativePanel::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = Reflect(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;  // painting covers all of it
    case WM_SIZE:
      ::InvalidateRect(window_, nullptr, FALSE);
      return 0;
    case WM_NCDESTROY:
      ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
      return ::DefWindowProcW(std::exchange(window_, nullptr), message, wParam, lParam);
    default:
      return ::DefWindowProcW(window_, message, wParam, lParam);
  }
}

void NativePanel::Paint() {
  const PaintScope paint(window_);
  RECT inner{};
  ::GetClientRect(window_, &inner);
  if (OnPaint) {
    GdiSurface surface(paint.Dc());
    OnPaint(surface, {inner.right, inner.bottom});
  } else {
    ::FillRect(paint.Dc(), &inner, ::GetSysColorBrush(COLOR_BTNFACE));
  }
}

}  // namespace orvik
