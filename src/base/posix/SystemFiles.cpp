#include "base/SystemFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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
// may change it; otherwise the file stays the writer's own.
bool TakeAfter(int file, const struct stat& like) {
  struct stat mine {};
  if (fstat(file, &mine) != 0) return false;
  if (mine.st_uid != like.st_uid || mine.st_gid != like.st_gid) {
    [[maybe_unused]] const int ignored = fchown(file, like.st_uid, like.st_gid);
  }
  return fchmod(file, like.st_mode & kPermissions) == 0;
}

// Best effort: without it the rename itself can be lost in a power failure; the old file is then
// still there, whole.
void FlushFolder(const fs::path& folder) {
  const Descriptor opened(
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.Get() >= 0) fsync(opened.Get());
}

}  // namespace

NewFileOutcome WriteNewFile(const fs::path& path, std::string_view bytes, const fs::path& like) {
  const auto model = StatusOf(like);
  const mode_t mode = model ? kPrivateMode : kCommonMode;
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (file.Get() < 0) return errno == EEXIST ? NewFileOutcome::NameTaken : NewFileOutcome::Failed;
  const bool isFlushed = WriteAll(file.Get(), bytes) && (!model || TakeAfter(file.Get(), *model)) &&
                         fsync(file.Get()) == 0;
  if (file.Close() && isFlushed) return NewFileOutcome::Written;
  std::error_code ignored;
  fs::remove(path, ignored);
  return NewFileOutcome::Failed;
}

bool RenameOver(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) return false;
  FlushFolder(to.parent_path());
  return true;
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
