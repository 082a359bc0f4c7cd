#include "platform/win32/Dpi.h"

namespace orvik {
namespace {

constexpr int kUsualDpi = 96;

// A function of user32 that an older system may not have; null there.
template <typename Function>
Function User32(const char* name) {
  const HMODULE user32 = ::GetModuleHandleW(L"user32.dll");
  const FARPROC found = user32 ? ::GetProcAddress(user32, name) : nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

using SetThreadContext = HANDLE(WINAPI*)(HANDLE);

HANDLE PerMonitor(int version) {
  return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(version == 2 ? -4 : -3));
}

int DpiOfScreen() {
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
  ::ReleaseDC(nullptr, screen);
  return dpi;
}

void ScaleFont(LOGFONTW& font, int dpi, int from) {
  font.lfHeight = ::MulDiv(font.lfHeight, dpi, from);
}

}  // namespace

ThreadDpiScope::ThreadDpiScope() {
  const auto set = User32<SetThreadContext>("SetThreadDpiAwarenessContext");
  if (!set) return;
  before_ = set(PerMonitor(2));
  if (!before_) before_ = set(PerMonitor(1));
}

ThreadDpiScope::~ThreadDpiScope() {
  if (before_) User32<SetThreadContext>("SetThreadDpiAwarenessContext")(before_);
}

int DpiOf(HWND window) {
  const auto ask = User32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const int dpi = ask ? static_cast<int>(ask(window)) : DpiOfScreen();
  return dpi > 0 ? dpi : kUsualDpi;
}

NONCLIENTMETRICSW NonClientMetrics(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  using Ask = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
  const auto ask = User32<Ask>("SystemParametersInfoForDpi");
  const auto wanted = static_cast<UINT>(dpi);
  if (ask && ask(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, wanted)) return metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  ScaleFont(metrics.lfMessageFont, dpi, DpiOfScreen());
  return metrics;
}

SIZE OuterSize(HWND window, SIZE inner, int dpi) {
  RECT outer{0, 0, inner.cx, inner.cy};
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
  const auto exStyle = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_EXSTYLE));
  const BOOL hasMenu = ::GetMenu(window) != nullptr;
  using Adjust = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
  const auto adjust = User32<Adjust>("AdjustWindowRectExForDpi");
  if (!adjust || !adjust(&outer, style, hasMenu, exStyle, static_cast<UINT>(dpi))) {
    ::AdjustWindowRectEx(&outer, style, hasMenu, exStyle);
  }
  return {outer.right - outer.left, outer.bottom - outer.top};
}

}  // namespace orvik
