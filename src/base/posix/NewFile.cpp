#include "base/NewFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace orvik {
namespace {

constexpr mode_t kMode = 0666;  // less what the user's mask takes away

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kMode);
  if (file < 0) return errno == EEXIST ? NewFileOutcome::NameTaken : NewFileOutcome::Failed;
  const bool isFlushed = WriteAll(file, bytes) && fsync(file) == 0;
  // Some systems tell only here that the disk is full.
  if (close(file) == 0 && isFlushed) return NewFileOutcome::Written;
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  return NewFileOutcome::Failed;
}

}  // namespace orvik
