// What the safe writer needs from each operating system.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace orvik {

// True where the system lets us write into the existing regular file at `path`. A file that another
// program holds is not ours to refuse: whether it can be replaced is tried.
bool MayWrite(const std::filesystem::path& path);

enum class NewFileOutcome : std::uint8_t {
  Written,
  NameTaken,     // something has this name already, and is unchanged
  OwnerRefused,  // the file cannot belong to the owner of the one at `like`
  DiskFull,
  Failed,
};

enum class Owner : std::uint8_t {
  MustBeKept,
  MayChange,  // where it must, the file is readable for its writer only
};

// Makes a file that did not exist before, opened exclusively so that no other program can write
// into it and locked while it is written, and writes the bytes through to the disk. Where there is
// a file at `like`, the new one gets its permissions and its owner, and at no time can more people
// read it than that; on Windows it gets the permissions that its folder gives. Unless it is
// Written, nothing is left behind.
NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes,
                            const std::filesystem::path& like, Owner owner = Owner::MustBeKept);

// Renames a file over another one, or to a free name, and flushes the folder. False where the
// system refuses; both files are then unchanged.
bool RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

// Writes the names of the folder's files through to the disk, as far as the system can be asked to.
void FlushFolder(const std::filesystem::path& folder);

enum class OverwriteOutcome : std::uint8_t {
  Written,
  Refused,  // the file could not be opened and is unchanged
  Broken,   // it may hold half of the one and half of the other
};

// Writes the bytes into an existing file in place of its own, through to the disk.
OverwriteOutcome OverwriteFile(const std::filesystem::path& path, std::string_view bytes);

// Removes a file that WriteNewFile left behind: one that nobody has written to for so long, and
// that no living writer keeps locked. Any other file stays.
void RemoveAbandoned(const std::filesystem::path& path, std::chrono::seconds age);

// The target of a path that is a symbolic link; any other path unchanged. The target need not
// exist, except on Windows, where the system resolves only links to existing files: nothing there.
std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path);

}  // namespace orvik
