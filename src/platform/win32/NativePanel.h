// An area that holds other widgets, and paints what lies under them.
#pragma once

#include "platform/Toolkit.h"
#include "platform/win32/WindowClass.h"

namespace orvik {

class NativePanel final : public Panel {
 public:
  // Throws std::system_error where the window cannot be made.
  NativePanel(HINSTANCE module, HWND parent);
  NativePanel(const NativePanel&) = delete;
  NativePanel& operator=(const NativePanel&) = delete;
  ~NativePanel() override;

  HWND Handle() const { return window_; }

  bool Visible() const override;
  // The focus follows: out of a panel that is hidden, into one that is shown.
  void Visible(bool visible) override;
  bool Enabled() const override;
  void Enabled(bool enabled) override;
  void Move(int left, int top, int width, int height) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static WNDCLASSEXW Describe(HINSTANCE module);

  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
  void Paint();
  void HandFocusOn(bool visible) const;

  WindowClass class_;
  HWND window_ = nullptr;
};

}  // namespace orvik
