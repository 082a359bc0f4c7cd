// A field of one line: one inner text box whose edits are raised to the host under a switch.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Toolkit.h"

namespace orvik {

// Text, colours and the locked state have no storage here: they are those of the inner text box.
class ctrlMyTextBox {
 public:
  ctrlMyTextBox(Toolkit& toolkit, std::string_view name);
  ctrlMyTextBox(const ctrlMyTextBox&) = delete;
  ctrlMyTextBox& operator=(const ctrlMyTextBox&) = delete;
  ~ctrlMyTextBox() = default;

  std::string Text() const { return Text1_->Text(); }
  void Text(std::string_view text) { Text1_->Text(text); }
  Colour ForeColor() const { return Text1_->ForeColor(); }
  void ForeColor(Colour colour) { Text1_->ForeColor(colour); }
  Colour BackColor() const { return Text1_->BackColor(); }
  void BackColor(Colour colour) { Text1_->BackColor(colour); }
  bool Locked() const { return Text1_->Locked(); }
  void Locked(bool locked) { Text1_->Locked(locked); }
  std::string Description() const { return Text1_->Description(); }
  void Description(std::string_view description) { Text1_->Description(description); }

  // While this is false no event is raised, and keys reach the inner text box unchanged.
  bool EventsOn() const { return eventsOn_; }
  void EventsOn(bool on) { eventsOn_ = on; }

  // Places the control; the inner text box covers the whole of it.
  void Move(int left, int top, int width, int height) { Text1_->Move(left, top, width, height); }

  std::function<void()> OnChange;  // after every change of the text, typed or assigned
  // A character typed (13 = Enter); the host may replace it, or swallow it with 0.
  std::function<void(std::int16_t& KeyAscii)> OnKeyPress;
  std::function<void()> OnLeave;  // the keyboard focus has left the field

 private:
  std::unique_ptr<TextBox> Text1_;
  bool eventsOn_ = true;
};

}  // namespace orvik
