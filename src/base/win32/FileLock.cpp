#include "base/FileLock.h"

#include <windows.h>

#include "base/Paths.h"

namespace orvik {

// The system removes the file when it is closed.
std::unique_ptr<FileLock> FileLock::Take(const std::string& path) {
  if (!IsWholeName(path)) return nullptr;
  const HANDLE file =
      CreateFileW(PathFromUtf8(path).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  return std::unique_ptr<FileLock>(new FileLock(path, reinterpret_cast<std::intptr_t>(file)));
}

FileLock::~FileLock() {
  CloseHandle(reinterpret_cast<HANDLE>(file_));
}

}  // namespace orvik
