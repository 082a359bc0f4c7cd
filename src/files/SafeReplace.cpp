#include "files/SafeReplace.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>

#include "base/NewFile.h"
#include "base/Paths.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNamesTried = 100;  // a disk on which every name is taken is out of order

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

// Random, so that two windows which save into one folder take two names; short, whatever the length
// of the file's own.
fs::path RandomNameBeside(const fs::path& path) {
  std::random_device random;
  const std::uint64_t number = std::uint64_t{random()} << 32U | random();
  std::array<char, 16> digits{};
  char* end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
  return path.parent_path() / ("~kav-" + std::string(digits.begin(), end) + ".tmp");
}

// The new file, beside the target; nothing where it cannot be written.
std::optional<fs::path> WriteBeside(const fs::path& target, std::string_view bytes) {
  for (int i = 0; i < kMostNamesTried; ++i) {
    const fs::path beside = RandomNameBeside(target);
    const NewFileOutcome outcome = WriteNewFile(beside, bytes);
    if (outcome == NewFileOutcome::Written) return beside;
    if (outcome == NewFileOutcome::Failed) break;
  }
  return std::nullopt;
}

bool TakePlaceOf(const fs::path& beside, const fs::path& target) {
  std::error_code error;
  const auto old = fs::status(target, error);
  if (fs::exists(old)) fs::permissions(beside, old.permissions(), error);
  fs::rename(beside, target, error);
  return !error;
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view bytes) {
  const fs::path target = LinkTarget(PathFromUtf8(path));
  if (IsReadOnly(target)) return false;
  const auto beside = WriteBeside(target, bytes);
  if (!beside) return false;
  if (TakePlaceOf(*beside, target)) return true;
  std::error_code ignored;
  fs::remove(*beside, ignored);
  return false;
}

}  // namespace orvik
