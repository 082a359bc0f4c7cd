#include "platform/headless/HeadlessDesktop.h"

namespace orvik {

void HeadlessDesktop::ShowMessage(std::string_view text, std::string_view title, MessageIcon icon) {
  messages_.push_back({std::string(text), std::string(title), icon});
}

bool HeadlessDesktop::AskYesNo(std::string_view text, std::string_view title) {
  messages_.push_back({std::string(text), std::string(title), MessageIcon::None});
  return answerYes_;
}

std::string HeadlessDesktop::Choose(const FileDialog& dialog) {
  fileDialogs_.push_back(dialog);
  if (fileAnswers_.empty()) return {};
  std::string path = std::move(fileAnswers_.front());
  fileAnswers_.pop_front();
  return path;
}

PageOpening HeadlessDesktop::OpenPage(const std::string& path) {
  openedPages_.push_back(path);
  return pageAnswer_;
}

std::optional<Picture> HeadlessDesktop::ReadPicture(const std::string& path) {
  readPictures_.push_back(path);
  return pictureAnswer_;
}

bool HeadlessDesktop::CopyToClipboard(const ClipboardContent& content) {
  if (!clipboardIsFree_) return false;
  clipboard_ = content;
  return true;
}

}  // namespace orvik
