// The top-level window: frame, menu bar, layout of its controls, and the loop of messages while it
// is shown modally.
#pragma once

#include <memory>

#include "platform/FormDesign.h"
#include "platform/Toolkit.h"
#include "platform/win32/MessageFont.h"
#include "platform/win32/ModalHost.h"
#include "platform/win32/NativeMenu.h"
#include "platform/win32/WindowClass.h"

namespace orvik {

class NativeWindow final : public Window {
 public:
  // Hidden. `design` outlives the window. Throws std::system_error where it cannot be made.
  NativeWindow(HINSTANCE module, const FormDesign& design);
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;
  ~NativeWindow() override;

  HWND Handle() const { return window_; }
  const FormDesign& Design() const { return design_; }
  const std::shared_ptr<NativeMenuBar>& MenuBar() const { return menu_; }

  bool Visible() const override;
  void Visible(bool visible) override;
  bool Enabled() const override;
  void Enabled(bool enabled) override;
  void Move(int left, int top, int width, int height) override;
  std::string Caption() const override;
  void Caption(std::string_view caption) override;

  // Throws std::logic_error where it is shown already.
  void ShowModally() override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static WNDCLASSEXW Describe(HINSTANCE module);

  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT Refuse(UINT message, WPARAM wParam);
  void AnswerCommand(WORD command);
  void AnswerClose();
  bool AnswerActivation(bool active);
  void MoveFocus(WPARAM target, bool isControl) const;
  void AnswerDrop(WPARAM drop);
  void AnswerScaling(int dpi, const RECT& suggested);
  void LimitSize(MINMAXINFO& limits) const;
  void ForwardToDescendants(UINT message) const;
  void SetFont(int dpi);
  void LayOut() const;

  void Prepare();
  void CentreOver(HWND owner);
  void FocusFirst() const;
  void Loop();
  bool IsOurs(const MSG& message) const;
  void CommitEdit() const;

  const FormDesign& design_;
  WindowClass class_;
  HWND window_ = nullptr;
  MessageFont font_;
  std::shared_ptr<NativeMenuBar> menu_;
  std::unique_ptr<ModalHost> host_;  // while it is shown modally
  HWND lastFocus_ = nullptr;         // our control to return to, while another window is active
};

}  // namespace orvik
