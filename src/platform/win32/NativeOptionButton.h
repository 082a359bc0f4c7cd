// One of several buttons of which one is down, on the system's own control.
#pragma once

#include "platform/Toolkit.h"
#include "platform/win32/ChildWindow.h"

namespace orvik {

class NativeOptionButton final : public NativeWidget<OptionButton> {
 public:
  NativeOptionButton(HINSTANCE module, HWND parent);

  std::string Caption() const override { return WindowText(); }
  void Caption(std::string_view caption) override { WindowText(caption); }
  bool Value() const override;
  void Value(bool value) override;

 protected:
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void TakeFocusFromOtherOption() const;
};

}  // namespace orvik
