#include "base/NewFile.h"

#include <windows.h>

#include <algorithm>
#include <limits>
#include <system_error>

namespace orvik {
namespace {

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

}  // namespace

NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const DWORD error = GetLastError();
    const bool isTaken = error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
    return isTaken ? NewFileOutcome::NameTaken : NewFileOutcome::Failed;
  }
  const bool isFlushed = WriteAll(file, bytes) && FlushFileBuffers(file);
  if (CloseHandle(file) && isFlushed) return NewFileOutcome::Written;
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  return NewFileOutcome::Failed;
}

}  // namespace orvik
