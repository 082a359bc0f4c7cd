#include "base/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Paths.h"

namespace orvik {
namespace {

constexpr int kMostTries = 10;
constexpr mode_t kLockMode = 0600;

// False where somebody has removed the file since it was opened: others see another one, or none.
bool IsStillThere(int file, const std::string& path) {
  struct stat mine {};
  struct stat named {};
  return fstat(file, &mine) == 0 && stat(path.c_str(), &named) == 0 &&
         mine.st_ino == named.st_ino && mine.st_dev == named.st_dev;
}

}  // namespace

std::unique_ptr<FileLock> FileLock::Take(const std::string& path) {
  if (!IsWholeName(path)) return nullptr;
  for (int i = 0; i < kMostTries; ++i) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kLockMode);
    if (file < 0) return nullptr;
    const bool isMine = flock(file, LOCK_EX | LOCK_NB) == 0;
    if (isMine && IsStillThere(file, path)) {
      return std::unique_ptr<FileLock>(new FileLock(path, file));
    }
    close(file);
    if (!isMine) break;
  }
  return nullptr;
}

FileLock::~FileLock() {
  unlink(path_.c_str());
  close(static_cast<int>(file_));
}

}  // namespace orvik
