#include "platform/win32/NativeComboBox.h"

#include "platform/win32/Reflection.h"
#include "platform/win32/WideText.h"

namespace orvik {

NativeComboBox::NativeComboBox(HINSTANCE module, HWND parent)
    : NativeWidget(module, parent,
                   {L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, WS_EX_CLIENTEDGE}) {}

void NativeComboBox::Clear() {
  ::SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
  raisedFor_ = -1;
}

void NativeComboBox::AddItem(std::string_view text) {
  const std::wstring item = WideFromUtf8(text);
  ::SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
}

std::int16_t NativeComboBox::ListCount() const {
  return static_cast<std::int16_t>(::SendMessageW(Handle(), CB_GETCOUNT, 0, 0));
}

std::string NativeComboBox::List(std::int16_t index) const {
  if (index < 0 || index >= ListCount()) return {};
  const auto item = static_cast<WPARAM>(index);
  const LRESULT length = ::SendMessageW(Handle(), CB_GETLBTEXTLEN, item, 0);
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  ::SendMessageW(Handle(), CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text.data()));
  return Utf8FromWide(text);
}

std::int16_t NativeComboBox::ListIndex() const {
  if (!Handle()) return -1;
  return static_cast<std::int16_t>(::SendMessageW(Handle(), CB_GETCURSEL, 0, 0));
}

void NativeComboBox::ListIndex(std::int16_t index) {
  if (index < 0 || index >= ListCount()) index = -1;
  if (index != ListIndex()) {
    // The system wants -1 for none in the width of a pointer.
    ::SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(static_cast<INT_PTR>(index)), 0);
  }
  RaiseChange();  // also of the item that an open list only marked until now
}

// OnClick is raised once, whichever way the list came to its item.
void NativeComboBox::RaiseChange() {
  const std::int16_t index = ListIndex();
  if (index == raisedFor_) return;
  raisedFor_ = index;
  if (OnClick) OnClick();
}

bool NativeComboBox::IsDropped() const {
  return ::SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

// The item marked in an open list counts as chosen: the command that follows reads its index.
void NativeComboBox::CommitOpenList() {
  if (!IsDropped()) return;
  ::SendMessageW(Handle(), CB_SHOWDROPDOWN, FALSE, 0);
  RaiseChange();
}

LRESULT NativeComboBox::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kReflectedCommand) {
    // Items that the user passes in an open list are not chosen yet.
    const WORD notification = HIWORD(wParam);
    const bool isChosen = notification == CBN_SELCHANGE && !IsDropped();
    if (isChosen || notification == CBN_CLOSEUP) RaiseChange();
    return 0;
  }
  if (message == kCommitEdit) {
    CommitOpenList();
    return 0;
  }
  // Turning the wheel over a closed list would change the choice by accident.
  if (message == WM_MOUSEWHEEL && !IsDropped()) return 0;
  return NativeWidget::Answer(message, wParam, lParam);
}

void PlaceComboBox(HWND comboBox, const RECT& area) {
  constexpr LRESULT kItems = 12;
  const LRESULT itemHeight = ::SendMessageW(comboBox, CB_GETITEMHEIGHT, 0, 0);
  const LONG room = area.bottom - area.top;
  const auto place = [&](LONG top) {
    ::SetWindowPos(comboBox, nullptr, area.left, top, area.right - area.left,
                   static_cast<int>(room + kItems * itemHeight), SWP_NOZORDER | SWP_NOACTIVATE);
  };
  place(area.top);
  RECT outer{};
  ::GetWindowRect(comboBox, &outer);
  const LONG spare = room - (outer.bottom - outer.top);
  if (spare != 0) place(area.top + spare / 2);
}

}  // namespace orvik
