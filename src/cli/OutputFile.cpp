#include "cli/OutputFile.h"

#include <filesystem>

#include "base/FileError.h"
#include "base/Paths.h"
#include "base/SafeFile.h"

namespace orvik {
namespace {

void Require(const std::string& path, std::optional<WriteFault> fault) {
  if (!fault) return;
  throw FileError("The file " + path + " cannot be written: " + std::string(ReasonOf(*fault)) +
                  ".");
}

}  // namespace

void RequireReplaceable(const std::string& path) {
  Require(path, FindTargetFault(path));
}

void WriteOutputFile(const std::string& path, std::string_view bytes) {
  const WriteOutcome outcome = WriteFileSafely(path, bytes);
  if (outcome.fault && !outcome.oldCopy.empty()) {
    throw FileError("The file " + path + " could not be written to its end and may be damaged. " +
                    "What it held before is kept as " + outcome.oldCopy + ".");
  }
  Require(path, outcome.fault);
}

void MakeOutputFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(PathFromUtf8(path), error);
  if (!FolderExists(path)) throw FileError("The folder " + path + " cannot be made.");
}

}  // namespace orvik
