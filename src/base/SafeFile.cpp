#include "base/SafeFile.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>

#include "base/Paths.h"
#include "base/SystemFiles.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNamesTried = 100;  // all of them taken: the disk is broken

// Marked as read-only, or we may not write it. Only asked of a regular file: opening a pipe would
// wait for its reader.
bool IsReadOnly(const fs::path& file, const fs::file_status& status) {
  if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) return true;
  return !std::ofstream(file, std::ios::binary | std::ios::app);  // opening alone changes nothing
}

// Random, so that two writers take different names; short, so that it fits where the target's own
// name is as long as the system allows.
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
    const NewFileOutcome outcome = WriteNewFile(beside, bytes, target);
    if (outcome == NewFileOutcome::Written) return beside;
    if (outcome == NewFileOutcome::Failed) break;
  }
  return std::nullopt;
}

}  // namespace

std::optional<WriteFault> FindTargetFault(const std::string& path) {
  if (!IsWholeName(path)) return WriteFault::NotWritten;
  const fs::path target = PathFromUtf8(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (error == std::errc::too_many_symbolic_link_levels) return WriteFault::LinksInACircle;
  if (!fs::exists(status)) return std::nullopt;
  if (fs::is_directory(status)) return WriteFault::IsFolder;
  if (!fs::is_regular_file(status)) return WriteFault::IsNotAFile;
  return IsReadOnly(target, status) ? std::optional(WriteFault::IsReadOnly) : std::nullopt;
}

std::optional<WriteFault> WriteFileSafely(const std::string& path, std::string_view bytes) {
  if (const auto fault = FindTargetFault(path)) return fault;
  const auto target = LinkTarget(PathFromUtf8(path));
  const auto beside = target ? WriteBeside(*target, bytes) : std::nullopt;
  if (!beside) return WriteFault::NotWritten;
  if (RenameOver(*beside, *target)) return std::nullopt;
  std::error_code ignored;
  fs::remove(*beside, ignored);
  return WriteFault::NotWritten;
}

}  // namespace orvik
