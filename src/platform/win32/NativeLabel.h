// Texts beside fields. A label's mnemonic leads to the field after it, and the label names that
// field to a screen reader.
#pragma once

#include "platform/Toolkit.h"
#include "platform/win32/ChildWindow.h"

namespace orvik {

class NativeLabel final : public NativeWidget<Label> {
 public:
  NativeLabel(HINSTANCE module, HWND parent) : NativeWidget(module, parent, {L"STATIC", SS_LEFT}) {}

  std::string Caption() const override { return WindowText(); }
  void Caption(std::string_view caption) override {
    if (caption != Caption()) WindowText(caption);
  }
};

}  // namespace orvik
