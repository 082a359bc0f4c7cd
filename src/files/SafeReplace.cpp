#include "files/SafeReplace.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/Paths.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

// Where a link leads; a path that is not a link, or leads nowhere, as it is.
fs::path LinkTarget(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target;
}

// Marked as read-only by its owner, or not ours to write.
bool IsReadOnly(const fs::path& path) {
  std::error_code error;
  const auto status = fs::status(path, error);
  if (!fs::exists(status)) return false;
  if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return true;
  return !std::ofstream(path, std::ios::binary | std::ios::app);  // opening alone changes nothing
}

// A name in the same folder that no file has; short, whatever the length of the file's own.
fs::path FreeNameBeside(const fs::path& path) {
  std::error_code error;
  for (int i = 1;; ++i) {
    fs::path beside = path.parent_path() / ("~saving" + std::to_string(i) + ".kav");
    if (!fs::exists(beside, error)) return beside;
  }
}

bool Holds(const fs::path& path, const std::string& expected) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return file && bytes == expected;
}

bool TakePlaceOf(const fs::path& beside, const fs::path& target) {
  std::error_code error;
  const auto old = fs::status(target, error);
  if (fs::exists(old)) fs::permissions(beside, old.permissions(), error);
  fs::rename(beside, target, error);
  return !error;
}

}  // namespace

bool ReplaceFile(const std::string& path, const std::string& expected,
                 const std::function<bool(const std::string& besides)>& write) {
  const fs::path target = LinkTarget(PathFromUtf8(path));
  if (IsReadOnly(target)) return false;
  const fs::path beside = FreeNameBeside(target);
  if (write(PathToUtf8(beside)) && Holds(beside, expected) && TakePlaceOf(beside, target)) {
    return true;
  }
  std::error_code ignored;
  fs::remove(beside, ignored);
  return false;
}

}  // namespace orvik
