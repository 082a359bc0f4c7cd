// A desktop without a screen for tests: it gives the answers that it was told to give and keeps
// what it was asked.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/HeadlessDesktop.h"

namespace orvik::test {

class AnsweringDesktop final : public HeadlessDesktop {
 public:
  bool AskYesNo(std::string_view text, std::string_view title) override;
  void Beep() override { ++beeps_; }
  std::string ChooseFileToOpen(const FileDialog& dialog) override { return Choose(dialog); }
  std::string ChooseFileToSave(const FileDialog& dialog) override { return Choose(dialog); }
  std::optional<std::string> DocumentsFolder() override { return documentsFolder_; }
  std::optional<std::string> StateFolder() override { return stateFolder_; }
  PageOpening OpenPage(const std::string& path) override;
  std::optional<Picture> ReadPicture(const std::string& path) override;
  bool CopyToClipboard(const ClipboardContent& content) override;
  std::unique_ptr<Printer> OpenPrinter() override { return std::move(printer_); }

  // The answer that the next questions get.
  void AnswerYes(bool yes) { answerYes_ = yes; }

  // The path that the next file dialog answers, one call for each; empty cancels it, as a dialog
  // without an answer is cancelled.
  void AnswerFile(std::string path) { fileAnswers_.push_back(std::move(path)); }

  void DocumentsFolder(std::optional<std::string> folder) { documentsFolder_ = std::move(folder); }
  void StateFolder(std::optional<std::string> folder) { stateFolder_ = std::move(folder); }
  void Today(CalendarDate date) { Now({date, 0, 0, 0}); }
  using HeadlessDesktop::Today;
  void ForgetMessages() { messages_.clear(); }

  // The printer that is opened next, once; without it there is none.
  void AnswerPrinter(std::unique_ptr<Printer> printer) { printer_ = std::move(printer); }

  // What comes of the next pages that are opened.
  void AnswerPage(PageOpening answer) { pageAnswer_ = answer; }

  // What is found in the pictures that are read next.
  void AnswerPicture(std::optional<Picture> picture) { pictureAnswer_ = std::move(picture); }

  // Whether the clipboard can be had; at first it can.
  void ClipboardIsFree(bool isFree) { clipboardIsFree_ = isFree; }

  const std::vector<FileDialog>& FileDialogs() const { return fileDialogs_; }
  const std::vector<std::string>& OpenedPages() const { return openedPages_; }
  const std::vector<std::string>& ReadPictures() const { return readPictures_; }
  const std::optional<ClipboardContent>& Clipboard() const { return clipboard_; }
  int Beeps() const { return beeps_; }

 private:
  std::string Choose(const FileDialog& dialog);

  std::vector<FileDialog> fileDialogs_;
  std::deque<std::string> fileAnswers_;
  std::optional<std::string> documentsFolder_;
  std::vector<std::string> openedPages_;
  std::optional<std::string> stateFolder_;
  PageOpening pageAnswer_ = PageOpening::Opened;
  std::vector<std::string> readPictures_;
  std::optional<Picture> pictureAnswer_;
  std::optional<ClipboardContent> clipboard_;
  std::unique_ptr<Printer> printer_;
  int beeps_ = 0;
  bool answerYes_ = false;
  bool clipboardIsFree_ = true;
};

}  // namespace orvik::test
