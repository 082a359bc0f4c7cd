#include "base/SafeFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <random>

#include "base/FileBytes.h"
#include "base/Paths.h"
#include "base/SystemFiles.h"
#include "base/Utf8.h"

namespace orvik {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNamesTried = 100;  // all of them taken: the disk is broken
constexpr std::size_t kLongestName = 255;
constexpr std::string_view kTemporaryPrefix = "~kav-";
constexpr std::string_view kTemporaryEnding = ".tmp";
constexpr std::size_t kRandomDigits = 16;

// Much longer than a write takes, also one that waits for a slow network.
constexpr std::chrono::minutes kAbandonedAfter{10};

// Marked as read-only, or we may not write it. Only asked of a regular file: opening a pipe would
// wait for its reader.
bool IsReadOnly(const fs::path& file, const fs::file_status& status) {
  return (status.permissions() & fs::perms::owner_write) == fs::perms::none || !MayWrite(file);
}

// --- The new file ---

// Random, so that two writers take different names; short, so that it fits where the target's own
// name is as long as the system allows.
fs::path RandomNameBeside(const fs::path& path) {
  std::random_device random;
  const std::uint64_t number = std::uint64_t{random()} << 32U | random();
  std::array<char, kRandomDigits> digits{};
  char* end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
  return path.parent_path() /
         std::string(kTemporaryPrefix).append(digits.begin(), end).append(kTemporaryEnding);
}

bool IsHexDigit(char c) {
  return ('0' <= c && c <= '9') || ('a' <= c && c <= 'f');
}

bool IsRandomName(std::string_view name) {
  if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporaryEnding)) return false;
  name.remove_prefix(kTemporaryPrefix.size());
  name.remove_suffix(kTemporaryEnding.size());
  return !name.empty() && name.size() <= kRandomDigits && std::ranges::all_of(name, IsHexDigit);
}

struct NewFile {
  NewFileOutcome outcome = NewFileOutcome::Failed;
  fs::path path;
};

NewFile WriteBeside(const fs::path& target, std::string_view bytes) {
  NewFile made;
  for (int i = 0; i < kMostNamesTried; ++i) {
    made.path = RandomNameBeside(target);
    made.outcome = WriteNewFile(made.path, bytes, target);
    if (made.outcome != NewFileOutcome::NameTaken) break;
  }
  return made;
}

void RemoveAbandonedFrom(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator file(folder.empty() ? fs::path(".") : folder, error);
  for (; !error && file != fs::directory_iterator(); file.increment(error)) {
    if (IsRandomName(AsciiOf(file->path().filename()))) {
      RemoveAbandoned(file->path(), kAbandonedAfter);
    }
  }
}

// --- A copy beside a file ---

// As much of the text as fits into so many bytes, in whole characters.
std::string_view Shortened(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  while (bytes > 0 && IsContinuation(text[bytes])) --bytes;
  return text.substr(0, bytes);
}

// "Pond (kept).kav", "Pond (kept 2).kav" and so on; a name that is too long with it loses letters.
fs::path SpeakingName(const fs::path& file, std::string_view why, int number) {
  std::string mark = " (" + std::string(why);
  if (number > 1) mark += " " + std::to_string(number);
  mark += ")";
  const std::string stem = PathToUtf8(file.stem());
  const std::string ending = PathToUtf8(file.extension());
  const std::string_view kept = Shortened(ending, kLongestName - mark.size());
  const std::size_t room = kLongestName - mark.size() - kept.size();
  return file.parent_path() /
         PathFromUtf8(std::string(Shortened(stem, room)).append(mark).append(kept));
}

std::optional<fs::path> CopyBeside(const fs::path& file, std::string_view bytes,
                                   std::string_view why) {
  for (int i = 1; i <= kMostNamesTried; ++i) {
    fs::path copy = SpeakingName(file, why, i);
    const NewFileOutcome outcome = WriteNewFile(copy, bytes, file, Owner::MayChange);
    if (outcome == NewFileOutcome::NameTaken) continue;
    if (outcome != NewFileOutcome::Written) break;
    FlushFolder(copy.parent_path());
    return copy;
  }
  return std::nullopt;
}

// --- Writing the file itself ---

// The copy is no longer needed. Where it cannot be removed it is named.
WriteOutcome WithoutCopy(std::optional<WriteFault> fault, const fs::path& copy) {
  std::error_code error;
  fs::remove(copy, error);
  return {fault, error ? PathToUtf8(copy) : std::string()};
}

WriteOutcome WriteItself(const fs::path& target, std::string_view bytes) {
  const auto old = ReadFileBytes(PathToUtf8(target));
  const auto copy = old ? CopyBeside(target, *old, "before saving") : std::nullopt;
  if (!copy) return {WriteFault::NotWritten};
  switch (OverwriteFile(target, bytes)) {
    case OverwriteOutcome::Written:
      return WithoutCopy(std::nullopt, *copy);
    case OverwriteOutcome::Refused:
      return WithoutCopy(WriteFault::InUse, *copy);
    case OverwriteOutcome::Broken:
      break;
  }
  const bool isPutBack = OverwriteFile(target, *old) == OverwriteOutcome::Written;
  if (isPutBack) return WithoutCopy(WriteFault::NotWritten, *copy);
  return {WriteFault::NotWritten, PathToUtf8(*copy)};
}

WriteOutcome Replace(const fs::path& target, const fs::path& beside, std::string_view bytes) {
  if (RenameOver(beside, target)) return {};
  std::error_code error;
  fs::remove(beside, error);
  return fs::exists(target, error) ? WriteItself(target, bytes)
                                   : WriteOutcome{WriteFault::NotWritten};
}

WriteOutcome Write(const fs::path& target, std::string_view bytes) {
  const NewFile made = WriteBeside(target, bytes);
  switch (made.outcome) {
    case NewFileOutcome::Written:
      return Replace(target, made.path, bytes);
    case NewFileOutcome::OwnerRefused:
      return WriteItself(target, bytes);
    case NewFileOutcome::DiskFull:
      return {WriteFault::DiskFull};
    case NewFileOutcome::NameTaken:
    case NewFileOutcome::Failed:
      break;
  }
  return {WriteFault::NotWritten};
}

}  // namespace

std::string_view ReasonOf(WriteFault fault) {
  switch (fault) {
    case WriteFault::IsFolder:
      return "it is a folder";
    case WriteFault::IsNotAFile:
      return "it is a device or a pipe, not a file";
    case WriteFault::LinksInACircle:
      return "its links lead in a circle";
    case WriteFault::IsReadOnly:
      return "it is read-only";
    case WriteFault::NoFolder:
      return "its folder does not exist";
    case WriteFault::DiskFull:
      return "the disk is full";
    case WriteFault::InUse:
      return "another program holds it open";
    case WriteFault::NotWritten:
      break;
  }
  return "the system refuses to write it";
}

std::optional<WriteFault> FindTargetFault(const std::string& path) {
  if (!IsWholeName(path)) return WriteFault::NotWritten;
  const fs::path target = PathFromUtf8(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (error == std::errc::too_many_symbolic_link_levels) return WriteFault::LinksInACircle;
  if (fs::is_directory(status)) return WriteFault::IsFolder;
  if (fs::exists(status) && !fs::is_regular_file(status)) return WriteFault::IsNotAFile;
  if (fs::exists(status)) {
    return IsReadOnly(target, status) ? std::optional(WriteFault::IsReadOnly) : std::nullopt;
  }
  const auto made = LinkTarget(target);
  const fs::path folder = made ? made->parent_path() : fs::path();
  const bool isMissing =
      !folder.empty() && fs::status(folder, error).type() == fs::file_type::not_found;
  return isMissing ? std::optional(WriteFault::NoFolder) : std::nullopt;
}

WriteOutcome WriteFileSafely(const std::string& path, std::string_view bytes) {
  if (const auto fault = FindTargetFault(path)) return {fault};
  const auto target = LinkTarget(PathFromUtf8(path));
  if (!target) return {WriteFault::NotWritten};
  RemoveAbandonedFrom(target->parent_path());
  return Write(*target, bytes);
}

std::optional<std::string> KeepCopyBeside(const std::string& path, std::string_view why) {
  const auto bytes = ReadFileBytes(path);
  const auto file = LinkTarget(PathFromUtf8(path));
  if (!bytes || !file) return std::nullopt;
  const auto copy = CopyBeside(*file, *bytes, why);
  return copy ? std::optional(PathToUtf8(*copy)) : std::nullopt;
}

}  // namespace orvik
