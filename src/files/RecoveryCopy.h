// A copy of work that is not saved, in a folder of the user's own, so that it can be brought back
// after the program died or the work was replaced.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Desktop.h"

namespace orvik {

class FileLock;

// Work that was not saved when its window went.
struct RecoveryOffer {
  std::string id;
  std::string time;  // when the copy was written: "2026-03-14 15:09:26"
  std::string path;  // of the project's file; empty for none
  std::string text;  // the project

  // The file's name for people.
  std::string Name() const;
};

// Each living window has at most one copy, which it keeps locked: a copy without a lock is that of
// a window that is gone. The copy itself is a project file that any window opens.
class RecoveryCopy {
 public:
  using Clock = std::function<ClockTime()>;

  // The folder, with a separator at its end, is made with the first copy. Empty: no copy can be
  // written.
  RecoveryCopy(std::string folder, Clock now);
  RecoveryCopy(const RecoveryCopy&) = delete;
  RecoveryCopy& operator=(const RecoveryCopy&) = delete;
  ~RecoveryCopy();  // a copy that is there is set aside

  // No copy was written in the last 10 seconds.
  bool IsDue() const;

  // Writes the copy at once, in place of the one before. False where it cannot be written.
  bool Write(const std::string& text, const std::string& path);

  // The work goes unsaved: its copy stays, and is offered from now on.
  void SetAside();

  // The work is saved, or there is none: its copy goes.
  void Remove();

  // What windows that are gone have left, the newest first.
  std::vector<RecoveryOffer> Offers() const;

  // The offer of this id, nobody else's until it is discarded or this goes. Nothing where it is
  // gone, or another window has taken it.
  std::optional<RecoveryOffer> Take(const std::string& id);
  void Discard(const std::string& id);
  void GiveBack();  // what was taken is offered again

  const std::string& Folder() const { return folder_; }

 private:
  // A copy and the lock on it.
  struct Locked {
    std::string id;
    std::unique_ptr<FileLock> lock;
  };

  std::string CopyPath(const std::string& id) const { return folder_ + id + ".kav"; }
  std::unique_ptr<FileLock> Lock(const std::string& id) const;
  std::optional<RecoveryOffer> Read(const std::string& id) const;
  std::vector<std::string> Ids() const;
  bool Begin();
  void RemoveOldest() const;

  std::string folder_;
  Clock now_;
  std::optional<Locked> own_;
  std::optional<Locked> taken_;
  std::optional<ClockTime> lastWritten_;
};

}  // namespace orvik
