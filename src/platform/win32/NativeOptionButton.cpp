#include "platform/win32/NativeOptionButton.h"

#include "platform/win32/Reflection.h"

namespace orvik {

NativeOptionButton::NativeOptionButton(HINSTANCE module, HWND parent)
    : NativeWidget(module, parent, {L"BUTTON", BS_AUTORADIOBUTTON | BS_PUSHLIKE}) {}

bool NativeOptionButton::Value() const {
  return ::SendMessageW(Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void NativeOptionButton::Value(bool value) {
  if (value != Value()) {
    ::SendMessageW(Handle(), BM_SETCHECK, value ? BST_CHECKED : BST_UNCHECKED, 0);
  }
  // The Tab key reaches the button that is down; the arrow keys reach the others.
  const LONG_PTR style = ::GetWindowLongPtrW(Handle(), GWL_STYLE);
  ::SetWindowLongPtrW(Handle(), GWL_STYLE,
                      value ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP});
  if (value) TakeFocusFromOtherOption();
}

// The system clicks a button of this kind that is up as soon as it gets the focus, also when only
// its window is activated: so the focus must not stay on a button that was released.
void NativeOptionButton::TakeFocusFromOtherOption() const {
  const HWND focus = ::GetFocus();
  if (!focus || focus == Handle() || ::GetParent(focus) != ::GetParent(Handle())) return;
  const LRESULT kind = ::SendMessageW(focus, WM_GETDLGCODE, 0, 0);
  if ((kind & DLGC_RADIOBUTTON) != 0) ::SetFocus(Handle());
}

LRESULT NativeOptionButton::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kReflectedCommand) return NativeWidget::Answer(message, wParam, lParam);
  if (HIWORD(wParam) == BN_CLICKED && OnClick) OnClick();
  return 0;
}

}  // namespace orvik
