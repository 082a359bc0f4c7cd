#include "platform/headless/HeadlessWidgets.h"

namespace orvik {

void HeadlessTextBox::Text(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  if (OnChange) OnChange();
}

void HeadlessComboBox::Clear() {
  items_.clear();
  index_ = -1;
}

std::string HeadlessComboBox::List(std::int16_t index) const {
  return IsItem(index) ? items_[static_cast<std::size_t>(index)] : std::string();
}

void HeadlessComboBox::ListIndex(std::int16_t index) {
  if (!IsItem(index)) index = -1;
  if (index == index_) return;
  index_ = index;
  if (OnClick) OnClick();
}

void HeadlessWindow::ShowModally() {
  Visible(true);
  Visible(false);
}

}  // namespace orvik
