#include "platform/headless/HeadlessDesktop.h"

namespace orvik {

void HeadlessDesktop::ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) {
  messages_.push_back({std::string(text), std::string(title), icon});
}

bool HeadlessDesktop::AskYesNo(std::string_view text, std::string_view title) {
  ShowMessage(text, title, MessageIcon::None);
  return false;
}

}  // namespace orvik
