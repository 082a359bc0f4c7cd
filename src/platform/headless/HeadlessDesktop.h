// A desktop without a screen: it keeps what was shown, for the command line to print and for tests
// to read.
#pragma once

#include <string>
#include <vector>

#include "platform/Desktop.h"

namespace orvik {

class HeadlessDesktop final : public Desktop {
 public:
  struct Message {
    std::string text;
    std::string title;
    MessageIcon icon;
    bool operator==(const Message&) const = default;
  };

  void ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) override;

  // In the order shown.
  const std::vector<Message>& Messages() const { return messages_; }

 private:
  std::vector<Message> messages_;
};

}  // namespace orvik
