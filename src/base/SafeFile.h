// The one way in which the system writes a file: a failed write never costs the old one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvik {

// Why a file was not written.
enum class WriteFault {
  // Found before anything is written:
  IsFolder,
  IsNotAFile,  // a device or a pipe
  LinksInACircle,
  IsReadOnly,  // marked read-only, or we have no permission to write it
  // No such folder, disk full, a bad disk, or another program holds the file:
  NotWritten,
};

// Writes the bytes to a new file beside `path`, under a random name that is opened exclusively, so
// that two programs that write into one folder never share a file; flushes it; and renames it over
// `path`, or over what `path` links to, whether or not it exists yet. The file keeps its
// permissions. After a fault the old file is unchanged and nothing new is left behind.
[[nodiscard]] std::optional<WriteFault> WriteFileSafely(const std::string& path,
                                                        std::string_view bytes);

// The faults that can be found before any work is done.
[[nodiscard]] std::optional<WriteFault> FindTargetFault(const std::string& path);

}  // namespace orvik
