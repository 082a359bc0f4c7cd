// What a screen reader hears of a window: questions to its accessible object, as such a program
// asks them.
#pragma once

#include <oleacc.h>
#include <windows.h>

#include <string>

#include "entry/com/Bstr.h"
#include "entry/com/Variant.h"
#include "platform/win32/ComPtr.h"

namespace orvik::test {

class Listener {
 public:
  explicit Listener(HWND window) {
    ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                 object_.OutVoid());
  }

  explicit operator bool() const { return static_cast<bool>(object_); }
  IAccessible& Object() const { return *object_.Get(); }
  void LetGo() { object_.Reset(); }

  static VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
  }

  // What it answers; "failed" in brackets with the code where it does not.
  std::string Name() const { return Text(&IAccessible::get_accName); }
  std::string Value() const { return Text(&IAccessible::get_accValue); }
  std::string Shortcut() const { return Text(&IAccessible::get_accKeyboardShortcut); }
  std::string DefaultAction() const { return Text(&IAccessible::get_accDefaultAction); }
  HRESULT Press() const { return object_->accDoDefaultAction(Self()); }

  // ROLE_SYSTEM_...; -1 where it does not tell.
  long Role() const {
    com::Variant role;
    return SUCCEEDED(object_->get_accRole(Self(), role.Out())) && role.Type() == VT_I4 ? role->lVal
                                                                                       : -1;
  }

 private:
  template <typename Question>
  std::string Text(Question question) const {
    com::Bstr text;
    const HRESULT result = (object_.Get()->*question)(Self(), text.Out());
    if (FAILED(result)) return "[failed " + std::to_string(static_cast<unsigned>(result)) + "]";
    return text.Utf8();
  }

  ComPtr<IAccessible> object_;
};

// COM on the test's thread while it lives, apart from the threads that have windows.
class ClientThread {
 public:
  explicit ClientThread(DWORD kind = COINIT_MULTITHREADED) { ::CoInitializeEx(nullptr, kind); }
  ClientThread(const ClientThread&) = delete;
  ClientThread& operator=(const ClientThread&) = delete;
  ~ClientThread() { ::CoUninitialize(); }
};

}  // namespace orvik::test
