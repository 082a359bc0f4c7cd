#include "platform/win32/WindowWall.h"

#include <exception>
#include <new>
#include <string>

#include "platform/win32/ExceptionText.h"

namespace orvik {
namespace {

constexpr const wchar_t* kIsShown = L"OrvikExceptionIsShown";  // on the top-level window

}  // namespace

void ShowException(HWND window) noexcept {
  const HWND top = ::GetAncestor(window, GA_ROOT);
  if (::GetPropW(top, kIsShown)) return;
  ::SetPropW(top, kIsShown, top);
  try {
    ::MessageBoxW(top, ExceptionText().c_str(), L"Error", MB_OK | MB_ICONEXCLAMATION);
  } catch (...) {
    ::MessageBoxW(top, L"Out of memory.", L"Error", MB_OK | MB_ICONEXCLAMATION);
  }
  ::RemovePropW(top, kIsShown);
}

}  // namespace orvik
