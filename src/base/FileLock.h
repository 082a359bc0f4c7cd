// A file by which one program shows the others that it lives.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace orvik {

// While it lives nobody else can take the same file, in this program or another. The system gives
// the file free when the program dies, however it does.
class FileLock {
 public:
  // Makes the file if need be. Null where somebody has it, or where it cannot be made.
  static std::unique_ptr<FileLock> Take(const std::string& path);

  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();  // the file goes with it

 private:
  FileLock(std::string path, std::intptr_t file) : path_(std::move(path)), file_(file) {}

  std::string path_;
  std::intptr_t file_;  // the system's own
};

}  // namespace orvik
