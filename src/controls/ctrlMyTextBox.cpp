#include "controls/ctrlMyTextBox.h"

namespace orvik {

ctrlMyTextBox::ctrlMyTextBox(Toolkit& toolkit, std::string_view name)
    : Text1_(toolkit.MakeTextBox(name)) {
  Text1_->OnChange = [this] {
    if (eventsOn_ && OnChange) OnChange();
  };
  Text1_->OnKeyPress = [this](std::int16_t& KeyAscii) {
    if (eventsOn_ && OnKeyPress) OnKeyPress(KeyAscii);
  };
  Text1_->OnLeave = [this] {
    if (eventsOn_ && OnLeave) OnLeave();
  };
}

}  // namespace orvik
