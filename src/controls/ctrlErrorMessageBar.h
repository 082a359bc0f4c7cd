// The strip that shows one message of validation or solving, beeps, and remembers the help topic
// that explains the message.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Toolkit.h"

namespace orvik {

class Desktop;

class ctrlErrorMessageBar {
 public:
  ctrlErrorMessageBar(Toolkit& toolkit, Desktop& desktop, std::string_view name);
  ctrlErrorMessageBar(const ctrlErrorMessageBar&) = delete;
  ctrlErrorMessageBar& operator=(const ctrlErrorMessageBar&) = delete;
  ~ctrlErrorMessageBar() = default;

  // Shows the message without the blanks around it, with a beep where BeepOn is set. A message of
  // blanks only removes what was shown, without a beep. HelpTopic 0: no page explains it.
  void SetErrMsg(std::string_view Msg, std::int16_t HelpTopic);

  // Removes the message and its help topic. No beep.
  void Clear();

  // A message is shown.
  bool IsSet() const { return isSet_; }
  std::string Text() const { return Text1_->Text(); }

  bool BeepOn() const { return beepOn_; }
  void BeepOn(bool on) { beepOn_ = on; }
  std::int16_t ExtendedHelpTopic() const { return extendedHelpTopic_; }
  void ExtendedHelpTopic(std::int16_t topic) { extendedHelpTopic_ = topic; }

  // Places the control; the inner text box covers the whole of it.
  void Move(int left, int top, int width, int height) { Text1_->Move(left, top, width, height); }

  std::function<void()> OnMessageChange;  // after every SetErrMsg and every Clear

 private:
  Desktop& desktop_;
  std::unique_ptr<TextBox> Text1_;
  bool isSet_ = false;
  bool beepOn_ = true;
  std::int16_t extendedHelpTopic_ = 0;
};

}  // namespace orvik
