#include "controls/ctrlErrorMessageBar.h"

#include "base/Text.h"
#include "platform/Desktop.h"

namespace orvik {

ctrlErrorMessageBar::ctrlErrorMessageBar(Toolkit& toolkit, Desktop& desktop, std::string_view name)
    : desktop_(desktop), Text1_(toolkit.MakeTextBox(name)) {
  Text1_->Locked(true);
}

void ctrlErrorMessageBar::SetErrMsg(std::string_view Msg, std::int16_t HelpTopic) {
  const std::string message(Trim(Msg));
  Text1_->Text(message);
  isSet_ = !message.empty();
  extendedHelpTopic_ = isSet_ ? HelpTopic : std::int16_t{0};
  if (isSet_ && beepOn_) desktop_.Beep();
  if (OnMessageChange) OnMessageChange();
}

void ctrlErrorMessageBar::Clear() {
  Text1_->Text("");
  isSet_ = false;
  extendedHelpTopic_ = 0;
  if (OnMessageChange) OnMessageChange();
}

}  // namespace orvik
