// A desktop without a screen or a user: it keeps what was shown, and answers what it is asked as a
// user who cancels.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Desktop.h"

namespace orvik {

class HeadlessDesktop : public Desktop {
 public:
  struct Message {
    std::string text;
    std::string title;
    MessageIcon icon;
    bool operator==(const Message&) const = default;
  };

  void ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) override;
  bool AskYesNo(std::string_view text, std::string_view title) override;
  void Beep() override {}
  std::string ChooseFileToOpen(const FileDialog&) override { return {}; }
  std::string ChooseFileToSave(const FileDialog&) override { return {}; }
  std::optional<std::string> DocumentsFolder() override { return std::nullopt; }
  std::optional<std::string> StateFolder() override { return std::nullopt; }
  PageOpening OpenPage(const std::string&) override { return PageOpening::NoProgram; }
  std::optional<Picture> ReadPicture(const std::string&) override { return std::nullopt; }
  bool CopyToClipboard(const ClipboardContent&) override { return false; }
  CalendarDate Today() override { return now_.date; }
  ClockTime Now() override { return now_; }
  std::unique_ptr<Printer> OpenPrinter() override { return nullptr; }

  // Sets the time that Now and Today answer.
  void Now(const ClockTime& time) { now_ = time; }

  // In the order shown, questions included.
  const std::vector<Message>& Messages() const { return messages_; }

 protected:
  std::vector<Message> messages_;

 private:
  ClockTime now_{{2000, 1, 1}, 0, 0, 0};
};

}  // namespace orvik
