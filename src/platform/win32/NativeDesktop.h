// The user's desktop: the system's own message boxes, file dialogs, clipboard and browser.
#pragma once

#include <windows.h>

#include "platform/Desktop.h"

namespace orvik {

// Message boxes and dialogs are owned by the thread's active window.
class NativeDesktop final : public Desktop {
 public:
  // `module` is the module whose code this is.
  explicit NativeDesktop(HINSTANCE module) : module_(module) {}

  void ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) override;
  bool AskYesNo(std::string_view text, std::string_view title) override;
  void Beep() override;
  std::string ChooseFileToOpen(const FileDialog& dialog) override;
  std::string ChooseFileToSave(const FileDialog& dialog) override;
  std::optional<std::string> DocumentsFolder() override;
  std::optional<std::string> StateFolder() override;
  CalendarDate Today() override;
  ClockTime Now() override;
  std::unique_ptr<Printer> OpenPrinter() override;
  PageOpening OpenPage(const std::string& path) override;
  std::optional<Picture> ReadPicture(const std::string& path) override;
  bool CopyToClipboard(const ClipboardContent& content) override;

 private:
  int ShowBox(std::string_view text, std::string_view title, UINT style) const;

  HINSTANCE module_;
};

}  // namespace orvik
