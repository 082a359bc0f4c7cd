#include "base/SystemFiles.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kKeptMarks = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr std::uint64_t kTicksPerSecond = 10'000'000;  // of a FILETIME

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

NewFileOutcome FailureOf(DWORD error) {
  const bool isFull = error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL;
  return isFull ? NewFileOutcome::DiskFull : NewFileOutcome::Failed;
}

std::uint64_t TicksOf(const FILETIME& time) {
  return std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime;
}

bool IsOlderThan(std::chrono::seconds age, const FILETIME& written) {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  const std::uint64_t ticks = static_cast<std::uint64_t>(age.count()) * kTicksPerSecond;
  return TicksOf(now) >= TicksOf(written) + ticks;
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

bool MayWrite(const fs::path& path) {
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.IsOpen() || GetLastError() != ERROR_ACCESS_DENIED;
}

// A new file inherits the permissions of its folder, as the old file did; what is kept of `like`
// are its marks (hidden, system). Nobody else opens the file while it is written.
NewFileOutcome WriteNewFile(const fs::path& path, std::string_view bytes, const fs::path& like,
                            Owner) {
  const DWORD found = like.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(like.c_str());
  const DWORD marks = found == INVALID_FILE_ATTRIBUTES ? 0 : found & kKeptMarks;
  FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              marks == 0 ? FILE_ATTRIBUTE_NORMAL : marks, nullptr));
  if (!file.IsOpen()) {
    const DWORD error = GetLastError();
    const bool isTaken = error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
    return isTaken ? NewFileOutcome::NameTaken : FailureOf(error);
  }
  NewFileOutcome outcome = NewFileOutcome::Written;
  if (!WriteAll(file.Get(), bytes) || !FlushFileBuffers(file.Get())) {
    outcome = FailureOf(GetLastError());
  }
  if (!file.Close() && outcome == NewFileOutcome::Written) outcome = NewFileOutcome::Failed;
  std::error_code ignored;
  if (outcome != NewFileOutcome::Written) fs::remove(path, ignored);
  return outcome;
}

// MOVEFILE_WRITE_THROUGH flushes the folder too.
bool RenameOver(const fs::path& from, const fs::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

// The system writes the names of new files through with their content.
void FlushFolder(const fs::path&) {}

OverwriteOutcome OverwriteFile(const fs::path& path, std::string_view bytes) {
  FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) return OverwriteOutcome::Refused;
  const bool isWritten =
      WriteAll(file.Get(), bytes) && SetEndOfFile(file.Get()) && FlushFileBuffers(file.Get());
  return file.Close() && isWritten ? OverwriteOutcome::Written : OverwriteOutcome::Broken;
}

// A file that is being written is shared with nobody: it cannot be opened here. A young one is not
// even opened: its writer is about to rename it, which an open file would not let him.
void RemoveAbandoned(const fs::path& path, std::chrono::seconds age) {
  WIN32_FILE_ATTRIBUTE_DATA found{};
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found)) return;
  if (!IsOlderThan(age, found.ftLastWriteTime)) return;
  const FileHandle file(CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  if (!file.IsOpen()) return;
  FILE_DISPOSITION_INFO remove{TRUE};
  SetFileInformationByHandle(file.Get(), FileDispositionInfo, &remove, sizeof(remove));
}

std::optional<fs::path> LinkTarget(const fs::path& path) {
  if (!IsSymbolicLink(path)) return path;
  const FileHandle file(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr));
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
