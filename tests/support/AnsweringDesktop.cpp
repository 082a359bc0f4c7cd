#include "support/AnsweringDesktop.h"

namespace orvik::test {

bool AnsweringDesktop::AskYesNo(std::string_view text, std::string_view title) {
  HeadlessDesktop::AskYesNo(text, title);
  return answerYes_;
}

std::string AnsweringDesktop::Choose(const FileDialog& dialog) {
  fileDialogs_.push_back(dialog);
  if (fileAnswers_.empty()) return {};
  std::string path = std::move(fileAnswers_.front());
  fileAnswers_.pop_front();
  return path;
}

PageOpening AnsweringDesktop::OpenPage(const std::string& path) {
  openedPages_.push_back(path);
  return pageAnswer_;
}

std::optional<Picture> AnsweringDesktop::ReadPicture(const std::string& path) {
  readPictures_.push_back(path);
  return pictureAnswer_;
}

bool AnsweringDesktop::CopyToClipboard(const ClipboardContent& content) {
  if (!clipboardIsFree_) return false;
  clipboard_ = content;
  return true;
}

}  // namespace orvik::test
