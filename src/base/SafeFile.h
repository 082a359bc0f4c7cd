// The one way in which the system writes a file: a failed write never costs the old one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvik {

// Why a file was not written.
enum class WriteFault : std::uint8_t {
  // Found before anything is written:
  IsFolder,
  IsNotAFile,  // a device or a pipe
  LinksInACircle,
  IsReadOnly,  // marked read-only, or we have no permission to write it
  NoFolder,
  // Found on the way:
  DiskFull,
  InUse,  // another program holds the file
  NotWritten,
};

// The fault in words that go on from "The file was not written: ".
std::string_view ReasonOf(WriteFault fault);

// What came of writing a file.
struct WriteOutcome {
  std::optional<WriteFault> fault;  // nothing: it is written
  // The path of a copy of the old file that lies beside it, empty for none. After a fault the file
  // itself may be damaged, and this is what it held; else the copy could not be removed.
  std::string oldCopy = {};

  bool IsWritten() const { return !fault; }
  bool operator==(const WriteOutcome&) const = default;
};

// Writes the bytes to a new file beside `path`, under a random name that is opened exclusively, so
// that two programs that write into one folder never share a file; flushes it; and renames it over
// `path`, or over what `path` links to, whether or not it exists yet. The file keeps its
// permissions and its owner; on Windows it has those that its folder gives. After a fault the old
// file is unchanged and nothing new is left behind.
//
// Where the file cannot be replaced but can be written (another program holds it open; it belongs
// to somebody else), a copy of it is laid beside it, and then it is written itself. If that fails
// the copy is put back, and only where that fails too it stays.
//
// Files that writers left behind when they were killed are removed from the folder.
[[nodiscard]] WriteOutcome WriteFileSafely(const std::string& path, std::string_view bytes);

// The faults that can be found before any work is done.
[[nodiscard]] std::optional<WriteFault> FindTargetFault(const std::string& path);

// Copies the file beside itself under a free name that says why ("Pond (kept).kav"), through to the
// disk. The copy's path; nothing where there is none.
[[nodiscard]] std::optional<std::string> KeepCopyBeside(const std::string& path,
                                                        std::string_view why);

}  // namespace orvik
