// What the safe writer needs from each operating system.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orvik {

enum class NewFileOutcome {
  Written,
  NameTaken,  // something has this name already, and is unchanged
  Failed,     // nothing is left behind
};

// Makes a file that did not exist before, opened exclusively so that no other program can write
// into it, and writes the bytes through to the disk. Where there is a file at `like`, the new one
// gets its permissions and, as far as the system allows, its owner; at no time can more people read
// it than that.
NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes,
                            const std::filesystem::path& like);

// Renames a file over another one, or to a free name, and flushes the folder. False where the
// system refuses; both files are then unchanged.
bool RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

// The target of a path that is a symbolic link; any other path unchanged. The target need not
// exist, except on Windows, where the system resolves only links to existing files: nothing there.
std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path);

}  // namespace orvik
