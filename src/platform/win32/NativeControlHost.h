// The window of a drawn control: translates the system's messages and does nothing else.
#pragma once

#include <optional>

#include "platform/Toolkit.h"
#include "platform/win32/AccessibleWindow.h"
#include "platform/win32/GdiSurface.h"
#include "platform/win32/WindowClass.h"

namespace orvik {

class NativeControlHost final : public ControlHost {
 public:
  // A visible child window of no size, reached by the Tab key. `module` is the module whose code
  // this is. Throws std::system_error where the window cannot be made.
  NativeControlHost(HINSTANCE module, HWND parent);
  NativeControlHost(const NativeControlHost&) = delete;
  NativeControlHost& operator=(const NativeControlHost&) = delete;
  ~NativeControlHost() override;

  // Null once its parent is destroyed; everything else then does nothing.
  HWND Handle() const { return window_; }

  bool Visible() const override;
  void Visible(bool visible) override;
  bool Enabled() const override;
  void Enabled(bool enabled) override;
  void Move(int left, int top, int width, int height) override;

  void Invalidate() override;
  void CaptureMouse() override;
  void ReleaseMouse() override;
  Surface* DrawNow() override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static WNDCLASSEXW Describe(HINSTANCE module);

  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
  void AnswerMouse(UINT message, LPARAM position);
  bool AnswerWheel(WPARAM turn, LPARAM position);
  void PressAgain(double x, double y);
  bool ShowPointer() const;
  LRESULT AnswerFocus(bool gained);
  LRESULT AnswerKeyQuestion(const MSG* key) const;
  void Paint();
  void PaintOn(HDC dc, const SIZE& size);
  void DrawFocus(HDC dc, const SIZE& size) const;
  void Press(std::int16_t button, double x, double y);
  void Release(std::int16_t button, double x, double y);
  void Click();
  bool Wants(WPARAM keyCode) const;
  void AnswerKeyDown(WPARAM keyCode, LPARAM details);
  void AnswerFont(HFONT font);
  LRESULT AnswerText(UINT message, WPARAM size, LPARAM buffer) const;
  void HasChanged();
  void RaiseEvents();

  WindowClass class_;
  HWND window_ = nullptr;
  HFONT font_ = nullptr;              // the window's, which outlives its use here
  std::optional<GdiSurface> screen_;  // on the window's own device context
  AccessibleWindow accessible_{*this};
  bool isReleasing_ = false;      // the mouse is being given back by ourselves
  bool isRaisingPosted_ = false;  // kRaiseEvents is on its way to the window
};

}  // namespace orvik
