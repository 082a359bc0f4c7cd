#include "base/SystemFiles.h"

#include <windows.h>

#include <algorithm>
#include <limits>
#include <string>
#include <system_error>

namespace orvik {
namespace {

namespace fs = std::filesystem;

// An open file, closed when this goes.
class FileHandle {
 public:
  explicit FileHandle(HANDLE file) : file_(file) {}
  ~FileHandle() { Close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  HANDLE Get() const { return file_; }
  bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }

  bool Close() {
    const HANDLE file = file_;
    file_ = INVALID_HANDLE_VALUE;
    return file == INVALID_HANDLE_VALUE || CloseHandle(file);
  }

 private:
  HANDLE file_;
};

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto piece =
        static_cast<DWORD>(std::min<std::size_t>(bytes.size(), std::numeric_limits<DWORD>::max()));
    DWORD written = 0;
    if (!WriteFile(file, bytes.data(), piece, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

// Other reparse points (files kept in a cloud, for example) are files of this folder.
bool IsSymbolicLink(const fs::path& path) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(path.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         found.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

}  // namespace

// `like` is not needed: a new file inherits the permissions of its folder, as the old file did.
NewFileOutcome WriteNewFile(const fs::path& path, std::string_view bytes, const fs::path&) {
  FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) {
    const DWORD error = GetLastError();
    const bool isTaken = error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
    return isTaken ? NewFileOutcome::NameTaken : NewFileOutcome::Failed;
  }
  const bool isFlushed = WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
  if (file.Close() && isFlushed) return NewFileOutcome::Written;
  std::error_code ignored;
  fs::remove(path, ignored);
  return NewFileOutcome::Failed;
}

// MOVEFILE_WRITE_THROUGH flushes the folder too.
bool RenameOver(const fs::path& from, const fs::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

std::optional<fs::path> LinkTarget(const fs::path& path) {
  if (!IsSymbolicLink(path)) return path;
  const FileHandle file(CreateFileW(path.c_str(), 0,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) return std::nullopt;
  std::wstring target(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, FILE_NAME_NORMALIZED),
                      L'\0');
  const DWORD length = GetFinalPathNameByHandleW(
      file.Get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= target.size()) return std::nullopt;
  target.resize(length);
  return target;
}

}  // namespace orvik
