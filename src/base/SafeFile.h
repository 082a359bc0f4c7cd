// The one way in which the system writes a file: the old one is never lost to a failed write.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvik {

// Why a file was not written.
enum class WriteFault {
  // Of the target, known before anything is written:
  IsFolder,
  IsNotAFile,  // a device or a pipe
  LinksInACircle,
  IsReadOnly,  // marked so, or not ours to write
  // No such folder, no room, a bad disk, another program that holds the file:
  NotWritten,
};

// Writes the bytes to a new file beside `path`, under a random name that is opened exclusively, so
// that two programs which write into one folder never meet; flushes it; and renames it over `path`,
// or over what `path` links to, also where nothing is there yet. The file keeps its permissions.
// With a fault the old file is as it was, and nothing new is left behind.
[[nodiscard]] std::optional<WriteFault> WriteFileSafely(const std::string& path,
                                                        std::string_view bytes);

// The fault of the target alone, which can be told before any work is done.
[[nodiscard]] std::optional<WriteFault> FindTargetFault(const std::string& path);

}  // namespace orvik
