#include "platform/win32/AccessibleWindow.h"

#include <utility>

namespace orvik {

// The number of the object comes in 32 bits, with or without its sign.
std::optional<LRESULT> AccessibleWindow::AnswerObject(HWND window, WPARAM wParam, LPARAM object) {
  if (static_cast<LONG>(object) != OBJID_CLIENT) return std::nullopt;
  if (!object_) object_ = ControlAccessible::Make(control_, window);
  if (!object_) return std::nullopt;
  const LRESULT reference =
      ::LresultFromObject(__uuidof(IAccessible), wParam, static_cast<IAccessible*>(object_.Get()));
  return reference > 0 ? std::optional(reference) : std::nullopt;
}

void AccessibleWindow::RaiseEvents(HWND window) {
  const Spoken now = control_.Announcement();
  const auto before = std::exchange(announced_, now);
  if (!before) return;
  if (now.name != before->name) {
    ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
  }
  if (now.value != before->value) {
    ::NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
  }
}

void AccessibleWindow::Close() {
  if (const auto object = std::exchange(object_, {})) object->Disconnect();
}

}  // namespace orvik
