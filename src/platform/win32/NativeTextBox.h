// A field of one line of text on the system's own text control, which is the only store of the
// text.
#pragma once

#include "platform/Toolkit.h"
#include "platform/win32/ChildWindow.h"
#include "platform/win32/GdiHandles.h"

namespace orvik {

class NativeTextBox final : public NativeWidget<TextBox> {
 public:
  // Wrapped: the line of text runs over several lines of the screen; line ends that are pasted
  // become blanks. Bare: without a frame. Notice: both. Any other style has the frame of a field.
  NativeTextBox(HINSTANCE module, HWND parent, WidgetStyle style);

  std::string Text() const override;
  void Text(std::string_view text) override;
  bool Locked() const override;
  void Locked(bool locked) override;
  Colour ForeColor() const override { return foreColor_; }
  void ForeColor(Colour colour) override;
  Colour BackColor() const override { return backColor_; }
  void BackColor(Colour colour) override;
  std::string Description() const override { return description_; }
  void Description(std::string_view description) override;

 protected:
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT AnswerSingle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT AnswerWrapped(UINT message, WPARAM wParam, LPARAM lParam);
  bool AnswerCharacter(WPARAM& character);
  LRESULT AnswerKeyQuestion(LRESULT systemAnswer, const MSG* key) const;
  void AnswerCommand(WORD notification);
  LRESULT AnswerColour(HDC dc) const;
  void FoldPastedLines();
  void ShowScrollBarAsNeeded() const;
  void Repaint() const;

  // In a field higher than its line the text is centred: the space above and below counts as frame.
  LRESULT AnswerFrameSize(WPARAM wParam, LPARAM lParam);
  LRESULT AnswerFramePaint(WPARAM wParam, LPARAM lParam);
  int LineHeight() const;

  Colour foreColor_ = kWindowText;
  Colour backColor_ = kWindowBackground;
  GdiObject<HBRUSH> background_;
  bool wrapped_;
  bool bare_;
  bool announced_;  // each new text is
  std::string description_;
  bool isSetting_ = false;  // the text is being assigned: the control's own notification is ignored
};

}  // namespace orvik
