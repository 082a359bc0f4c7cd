// Texts beside fields. A label's mnemonic leads to the field after it, and the label names that
// field to a screen reader.
#pragma once

#include "platform/FormDesign.h"
#include "platform/Toolkit.h"
#include "platform/win32/ChildWindow.h"
#include "platform/win32/Reflection.h"

namespace orvik {

class NativeLabel final : public NativeWidget<Label> {
 public:
  // Notice: in the colours for information. Any other style lies on a page.
  NativeLabel(HINSTANCE module, HWND parent, WidgetStyle style)
      : NativeWidget(module, parent, {L"STATIC", SS_LEFT}),
        isNotice_(style == WidgetStyle::Notice) {}

  std::string Caption() const override { return WindowText(); }
  void Caption(std::string_view caption) override {
    if (caption != Caption()) WindowText(caption);
  }

 protected:
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != kReflectedColour || !isNotice_) {
      return NativeWidget::Answer(message, wParam, lParam);
    }
    const auto dc = reinterpret_cast<HDC>(wParam);
    ::SetTextColor(dc, ::GetSysColor(COLOR_INFOTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_INFOBK));
    return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_INFOBK));
  }

 private:
  bool isNotice_;
};

}  // namespace orvik
