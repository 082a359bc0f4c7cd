// Keeps the recovery copy of the project in the fields, and brings back those of others.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/Hints.h"
#include "files/RecoveryCopy.h"

namespace orvik {

class FileCommands;

class UnsavedWork {
 public:
  // `files` outlives this, and its project counts as saved. The folder: see RecoveryCopy.
  UnsavedWork(FileCommands& files, std::string folder, RecoveryCopy::Clock now);

  // The user has changed something. There is no timer: what nobody changes needs no copy.
  void AnswerInput();

  // Another project takes the place of this one, or the window closes. Nobody is asked about
  // unsaved changes; they stay in their copy.
  void AnswerLeaving();
  void AnswerReplaced() { isLeaving_ = false; }

  void AnswerSaved();

  // What can be brought back, the newest first.
  std::vector<RecoveryOffer> Offers() const { return copy_.Offers(); }

  // Brings a copy back in place of the project in the fields, whose own changes go to their copy.
  // The project is untitled then. False where the copy is gone or cannot be read.
  bool Restore(const std::string& id);
  void Discard(const std::string& id);

  // That there was something to bring back at the start; nothing once the user has answered.
  const std::optional<Hint>& Offered() const { return offered_; }

  // That the copy cannot be written; nothing while it can.
  const std::optional<Hint>& Trouble() const { return trouble_; }

 private:
  bool Write();

  FileCommands& files_;
  RecoveryCopy copy_;
  std::string formerPath_;  // of a project that was brought back
  std::optional<Hint> offered_;
  std::optional<Hint> trouble_;
  bool isLeaving_ = false;
};

}  // namespace orvik
