// What the safe writer needs and each system does in its own way.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orvik {

enum class NewFileOutcome {
  Written,
  NameTaken,  // something has this name already; it is as it was
  Failed,     // nothing is left behind
};

// Makes a file that did not exist before, exclusively, so that two programs can never write into
// one, and writes the bytes through to the disk. Where there is a file at `like`, the new one gets
// its permissions, and its owner as far as the system allows; it is never readable by more people
// than that.
NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes,
                            const std::filesystem::path& like);

// Renames a file over another one, or to a free name, and flushes the folder. False where the
// system refuses; both files are then as they were.
bool RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

// What the link at the end of the path leads to; a path that is no link as it is. Where the link
// leads to nothing yet: on Windows nothing, since only the system knows the way.
std::optional<std::filesystem::path> LinkTarget(const std::filesystem::path& path);

}  // namespace orvik
