// What the module asks of the user's desktop. The real one lies in win32/, a twin without a screen
// in headless/.
#pragma once

#include <cstdint>
#include <string_view>

namespace orvik {

enum class MessageIcon : std::uint8_t { None, Exclamation };

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // Shows a message with an OK button and waits until it is read.
  virtual void ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) = 0;

  // Asks a question with the buttons Yes and No; true for Yes.
  virtual bool AskYesNo(std::string_view text, std::string_view title) = 0;

  // The system beep.
  virtual void Beep() = 0;
};

}  // namespace orvik
