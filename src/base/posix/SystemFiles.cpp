#include "base/SystemFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <optional>
#include <system_error>

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kCommonMode = 0666;   // less the process's umask
constexpr mode_t kPrivateMode = 0600;  // until the file gets the permissions of the old one
constexpr mode_t kPermissions = 07777;
constexpr int kMostLinks = 40;  // a longer chain of links is taken for a circle

// An open file or folder, closed when this goes.
class Descriptor {
 public:
  explicit Descriptor(int file) : file_(file) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return file_; }

  // False where the system reports only now that something was not written.
  bool Close() {
    const int file = file_;
    file_ = -1;
    return file < 0 || close(file) == 0;
  }

 private:
  int file_;
};

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

std::optional<struct stat> StatusOf(const fs::path& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

// The owner first, since changing it clears some permission bits (set-user-ID). Only the superuser
// may give a file away.
NewFileOutcome TakeAfter(int file, const struct stat& like, Owner owner) {
  struct stat mine {};
  if (fstat(file, &mine) != 0) return NewFileOutcome::Failed;
  const bool isOwners = mine.st_uid == like.st_uid && mine.st_gid == like.st_gid;
  if (!isOwners && fchown(file, like.st_uid, like.st_gid) != 0) {
    return owner == Owner::MayChange ? NewFileOutcome::Written : NewFileOutcome::OwnerRefused;
  }
  return fchmod(file, like.st_mode & kPermissions) == 0 ? NewFileOutcome::Written
                                                        : NewFileOutcome::Failed;
}

// Why the last call of the system failed.
NewFileOutcome FailureOf(int error) {
  const bool isFull = error == ENOSPC || error == EDQUOT || error == EFBIG;
  return isFull ? NewFileOutcome::DiskFull : NewFileOutcome::Failed;
}

NewFileOutcome Fill(Descriptor& file, std::string_view bytes,
                    const std::optional<struct stat>& like, Owner owner) {
  if (!WriteAll(file.Get(), bytes)) return FailureOf(errno);
  const NewFileOutcome taken = like ? TakeAfter(file.Get(), *like, owner) : NewFileOutcome::Written;
  if (taken != NewFileOutcome::Written) return taken;
  if (fsync(file.Get()) != 0 || !file.Close()) return FailureOf(errno);
  return NewFileOutcome::Written;
}

}  // namespace

bool MayWrite(const fs::path& path) {
  const Descriptor file(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
  return file.Get() >= 0 || (errno != EACCES && errno != EPERM && errno != EROFS);
}

// The lock goes with the descriptor, also when the program dies. A file system without locks is no
// reason not to write: the file's age protects it there.
NewFileOutcome WriteNewFile(const fs::path& path, std::string_view bytes, const fs::path& like,
                            Owner owner) {
  const auto model = StatusOf(like);
  const mode_t mode = model ? kPrivateMode : kCommonMode;
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (file.Get() < 0) return errno == EEXIST ? NewFileOutcome::NameTaken : FailureOf(errno);
  flock(file.Get(), LOCK_EX | LOCK_NB);
  const NewFileOutcome outcome = Fill(file, bytes, model, owner);
  std::error_code ignored;
  if (outcome != NewFileOutcome::Written) fs::remove(path, ignored);
  return outcome;
}

bool RenameOver(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) return false;
  FlushFolder(to.parent_path());
  return true;
}

// Best effort: without it the last rename can be lost in a power failure; the old file is then
// still there, whole.
void FlushFolder(const fs::path& folder) {
  const Descriptor opened(
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.Get() >= 0) fsync(opened.Get());
}

OverwriteOutcome OverwriteFile(const fs::path& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
  if (file.Get() < 0) return OverwriteOutcome::Refused;
  const bool isWritten = WriteAll(file.Get(), bytes) &&
                         ftruncate(file.Get(), static_cast<off_t>(bytes.size())) == 0 &&
                         fsync(file.Get()) == 0;
  return file.Close() && isWritten ? OverwriteOutcome::Written : OverwriteOutcome::Broken;
}

void RemoveAbandoned(const fs::path& path, std::chrono::seconds age) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (file.Get() < 0 || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  const bool isOld = std::time(nullptr) - status.st_mtime >= age.count();
  if (isOld && flock(file.Get(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
}

std::optional<fs::path> LinkTarget(const fs::path& path) {
  fs::path target = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i) {
    const fs::path next = fs::read_symlink(target, error);
    if (error) break;
    target = target.parent_path() / next;
  }
  return target;
}

}  // namespace orvik
