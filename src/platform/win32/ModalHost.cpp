#include "platform/win32/ModalHost.h"

#include <utility>

namespace orvik {
namespace {

struct Search {
  HWND shown;
  std::vector<HWND> found;
};

BOOL CALLBACK CollectEnabled(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (window != search.shown && ::IsWindowVisible(window) && ::IsWindowEnabled(window)) {
    search.found.push_back(window);
  }
  return TRUE;
}

std::vector<HWND> EnabledWindows(HWND shown) {
  Search search{shown, {}};
  ::EnumThreadWindows(::GetCurrentThreadId(), &CollectEnabled, reinterpret_cast<LPARAM>(&search));
  return std::move(search.found);
}

}  // namespace

ModalHost::ModalHost(HWND shown)
    : shown_(shown), focus_(::GetFocus()), disabled_(EnabledWindows(shown)) {
  owner_ = ::GetActiveWindow();
  if (!owner_ && !disabled_.empty()) owner_ = disabled_.front();  // the topmost comes first
  if (owner_ == shown_) owner_ = nullptr;
  if (owner_) owner_ = ::GetAncestor(owner_, GA_ROOT);
  ::SetWindowLongPtrW(shown_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner_));
  for (const HWND window : disabled_) ::EnableWindow(window, FALSE);
}

void ModalHost::Release() {
  for (const HWND window : disabled_) ::EnableWindow(window, TRUE);
  disabled_.clear();
}

void ModalHost::RestoreFocus() const {
  if (::IsWindow(shown_)) ::SetWindowLongPtrW(shown_, GWLP_HWNDPARENT, 0);
  if (!owner_ || !::IsWindow(owner_)) return;
  ::SetActiveWindow(owner_);
  if (focus_ && ::IsWindow(focus_)) ::SetFocus(focus_);
}

}  // namespace orvik
