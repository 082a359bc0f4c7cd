#include "cli/OutputFile.h"

#include <filesystem>

#include "base/FileError.h"
#include "base/Paths.h"
#include "base/SafeFile.h"

namespace orvik {
namespace {

std::string_view ReasonOf(WriteFault fault) {
  switch (fault) {
    case WriteFault::IsFolder:
      return ": it is a folder.";
    case WriteFault::IsNotAFile:
      return ": it is a device or a pipe, not a file.";
    case WriteFault::LinksInACircle:
      return ": its links lead in a circle.";
    case WriteFault::IsReadOnly:
      return ": it is read-only.";
    case WriteFault::NotWritten:
      break;
  }
  return ".";
}

void Require(const std::string& path, std::optional<WriteFault> fault) {
  if (fault) {
    throw FileError("The file " + path + " cannot be written" + std::string(ReasonOf(*fault)));
  }
}

}  // namespace

void RequireReplaceable(const std::string& path) {
  Require(path, FindTargetFault(path));
}

void WriteOutputFile(const std::string& path, std::string_view bytes) {
  Require(path, WriteFileSafely(path, bytes));
}

void MakeOutputFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(PathFromUtf8(path), error);
  if (!FolderExists(path)) throw FileError("The folder " + path + " cannot be made.");
}

}  // namespace orvik
