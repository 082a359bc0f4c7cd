#include "platform/win32/NativeDesktop.h"

#include "base/UserFolders.h"
#include "platform/win32/BrowserPage.h"
#include "platform/win32/Clipboard.h"
#include "platform/win32/Dpi.h"
#include "platform/win32/FileDialogs.h"
#include "platform/win32/GdiPrinter.h"
#include "platform/win32/PictureReader.h"
#include "platform/win32/ShellFolder.h"
#include "platform/win32/VisualStyles.h"
#include "platform/win32/WideText.h"

namespace orvik {

int NativeDesktop::ShowBox(std::string_view text, std::string_view title, UINT style) const {
  const ThreadDpiScope scaling;
  const VisualStyles look(module_);
  const HWND owner = ::GetActiveWindow();
  // Without a window of ours to own it, the thread's other windows must be disabled meanwhile.
  if (!owner) style |= MB_TASKMODAL | MB_SETFOREGROUND;
  return ::MessageBoxW(owner, WideFromUtf8(text).c_str(), WideFromUtf8(title).c_str(), style);
}

void NativeDesktop::ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) {
  ShowBox(text, title, MB_OK | (icon == MessageIcon::Exclamation ? MB_ICONEXCLAMATION : 0U));
}

bool NativeDesktop::AskYesNo(std::string_view text, std::string_view title) {
  return ShowBox(text, title, MB_YESNO) == IDYES;
}

void NativeDesktop::Beep() {
  ::MessageBeep(MB_OK);
}

std::string NativeDesktop::ChooseFileToOpen(const FileDialog& dialog) {
  const ThreadDpiScope scaling;
  const VisualStyles look(module_);
  return ShowOpenDialog(::GetActiveWindow(), dialog);
}

std::string NativeDesktop::ChooseFileToSave(const FileDialog& dialog) {
  const ThreadDpiScope scaling;
  const VisualStyles look(module_);
  return ShowSaveDialog(::GetActiveWindow(), dialog);
}

std::optional<std::string> NativeDesktop::DocumentsFolder() {
  return ShellDocumentsFolder();
}

std::optional<std::string> NativeDesktop::StateFolder() {
  return UserStateFolder();
}

CalendarDate NativeDesktop::Today() {
  return Now().date;
}

ClockTime NativeDesktop::Now() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return {{now.wYear, now.wMonth, now.wDay}, now.wHour, now.wMinute, now.wSecond};
}

std::unique_ptr<Printer> NativeDesktop::OpenPrinter() {
  return MakeGdiPrinter(PrinterDc::OpenDefault());
}

PageOpening NativeDesktop::OpenPage(const std::string& path) {
  return OpenInBrowser(::GetActiveWindow(), path);
}

std::optional<Picture> NativeDesktop::ReadPicture(const std::string& path) {
  return ReadPictureFile(path);
}

bool NativeDesktop::CopyToClipboard(const ClipboardContent& content) {
  return PutOnClipboard(content);
}

}  // namespace orvik
