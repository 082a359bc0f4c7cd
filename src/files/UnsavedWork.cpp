#include "files/UnsavedWork.h"

#include <utility>

#include "files/FileCommands.h"

namespace orvik {

UnsavedWork::UnsavedWork(FileCommands& files, std::string folder, RecoveryCopy::Clock now)
    : files_(files), copy_(std::move(folder), std::move(now)) {
  const auto offers = copy_.Offers();
  if (offers.empty()) return;
  offered_ = Hint{HintId::RecoveryOffered, {offers.front().Name(), offers.front().time}};
}

void UnsavedWork::AnswerInput() {
  if (!isLeaving_ && copy_.IsDue() && files_.HasUnsavedChanges()) Write();
}

void UnsavedWork::AnswerLeaving() {
  isLeaving_ = true;  // what comes now is nobody's input
  if (files_.HasUnsavedChanges()) {
    Write();
    copy_.SetAside();
  } else {
    copy_.Remove();
  }
  formerPath_.clear();
}

void UnsavedWork::AnswerSaved() {
  copy_.Remove();
  formerPath_.clear();
}

// The copy that is brought back stays until the window has one of its own.
bool UnsavedWork::Restore(const std::string& id) {
  offered_.reset();
  const auto offer = copy_.Take(id);
  if (!offer) return false;
  const bool isRead = files_.ReadUnsaved(offer->text, offer->path);
  formerPath_ = offer->path;
  if (isRead && Write()) copy_.Discard(id);
  copy_.GiveBack();
  return isRead;
}

void UnsavedWork::Discard(const std::string& id) {
  offered_.reset();
  copy_.Discard(id);
}

bool UnsavedWork::Write() {
  const std::string& path = files_.CurrentPath();
  const bool isWritten = copy_.Write(files_.TextNow(), path.empty() ? formerPath_ : path);
  trouble_.reset();
  if (!isWritten) trouble_ = Hint{HintId::RecoveryNotWritten, {copy_.Folder()}};
  return isWritten;
}

}  // namespace orvik
