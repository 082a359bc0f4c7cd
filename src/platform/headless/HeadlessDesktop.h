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
  bool AskYesNo(std::string_view text, std::string_view title) override;
  void Beep() override { ++beeps_; }

  // The answer that the next questions get.
  void AnswerYes(bool yes) { answerYes_ = yes; }

  // In the order shown, questions included.
  const std::vector<Message>& Messages() const { return messages_; }
  int Beeps() const { return beeps_; }

 private:
  std::vector<Message> messages_;
  int beeps_ = 0;
  bool answerYes_ = false;
};

}  // namespace orvik
