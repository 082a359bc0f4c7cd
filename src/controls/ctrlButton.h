// The module's own push button: a drawn 3-D edge round a centred caption, which can flash.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Host.h"
#include "platform/Surface.h"
#include "platform/Toolkit.h"

namespace orvik {

// The caption as it stands in the button. Pixels of the button; the size is that of the text when
// it was last measured.
struct ButtonLabel {
  std::string caption;
  Colour foreColor = kButtonText;
  bool fontBold = false;
  bool visible = false;
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

class ctrlButton {
 public:
  enum class State : std::int16_t { Raised = 1, Sunken = 2 };

  static constexpr int kFlashInterval = 500;  // milliseconds

  // Timer1 is the flash's.
  explicit ctrlButton(std::unique_ptr<Timer> Timer1);
  ctrlButton(const ctrlButton&) = delete;
  ctrlButton& operator=(const ctrlButton&) = delete;
  ~ctrlButton() = default;

  // The window that shows the button, null for none. It outlives the button or is taken away before
  // it goes.
  void AttachHost(Host* host) { host_ = host; }

  // The button's inner size in pixels.
  void Resize(int width, int height);

  // "&" marks the letter that works the button together with Alt; it is underlined.
  const std::string& Caption() const { return lblCaption_.caption; }
  void Caption(std::string_view caption);

  // The caption's font; bold is the flash's. At first Arial, 13 pixels high.
  void CaptionFont(const Font& font);

  // The caption flashes red and bold. Turned off, it is as it was at once.
  bool Flash() const { return Timer1_->Running(); }
  void Flash(bool on);

  // Centres the caption, measured on the screen if there is one.
  void CenterLabel();

  // Paints the whole button; one that cannot be used has a grey caption. Changes nothing that would
  // need another painting.
  void Paint(Surface& surface, bool isEnabled = true);

  // What a press on it does.
  void Click();

  // The mouse with its primary button; x and y are pixels of the button, over the caption as well,
  // and any value is allowed.
  void MouseDown();
  void MouseMove(double x, double y);
  void MouseUp(double x, double y);
  void CaptureLost();  // the system took the mouse away: the press ends without a click

  // The keyboard: Enter (13) clicks at once, the Space bar (32) when it is released. A press by the
  // Space bar ends without a click where the focus goes elsewhere.
  void KeyDown(std::int16_t keyCode);
  void KeyUp(std::int16_t keyCode);
  void LostFocus();
  static bool WantsKey(std::int16_t keyCode);  // whether KeyDown heeds it

  bool IsPressed() const { return pressed_ || pressedByKey_; }
  State VisualState() const { return state_; }
  const ButtonLabel& lblCaption() const { return lblCaption_; }

  std::function<void()> OnClick;  // pressed, and released over the button

 private:
  bool IsInside(double x, double y) const;
  void Show(State state);
  void Timer1_Timer();
  void StyleCaption(Colour colour, bool bold);
  void CenterLabel(Surface& surface);
  void Repaint();
  Font LabelFont() const;
  void WriteCaption(Surface& surface, Colour colour) const;
  template <typename Value>
  bool Write(Value& property, Value value);

  std::unique_ptr<Timer> Timer1_;
  Host* host_ = nullptr;
  int width_ = 0;
  int height_ = 0;
  Font font_;
  ButtonLabel lblCaption_;
  bool pressed_ = false;  // by the mouse
  bool pressedByKey_ = false;
  State state_ = State::Raised;
};

}  // namespace orvik
