// A control of the system that a widget wraps: owns its window and sees its messages first.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "platform/win32/WindowState.h"

namespace orvik {

// How a control's window is made.
struct ChildStyle {
  const wchar_t* className;
  DWORD style;  // in addition to child and visible
  DWORD exStyle = 0;
};

class ChildWindow {
 public:
  // Throws std::system_error where the window cannot be made.
  ChildWindow(HINSTANCE module, HWND parent, const ChildStyle& style);
  ChildWindow(const ChildWindow&) = delete;
  ChildWindow& operator=(const ChildWindow&) = delete;
  virtual ~ChildWindow();

  // Null once its parent is destroyed; everything else then does nothing and reads as empty.
  HWND Handle() const { return window_; }

 protected:
  std::string WindowText() const;
  void WindowText(std::string_view text);

  // A message to the control. The base class's answer is the system's own.
  virtual LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_;
  WNDPROC system_ = nullptr;  // the control's own procedure
};

// What all widgets on a control share, as a layer over one of the widget interfaces.
template <typename Interface>
class NativeWidget : public Interface, public ChildWindow {
 public:
  using ChildWindow::ChildWindow;

  bool Visible() const override { return IsShown(Handle()); }
  void Visible(bool visible) override { Show(Handle(), visible); }
  bool Enabled() const override { return IsEnabled(Handle()); }
  void Enabled(bool enabled) override { Enable(Handle(), enabled); }
  void Move(int left, int top, int width, int height) override {
    Place(Handle(), left, top, width, height);
  }
};

}  // namespace orvik
