#include "curves/OutputFile.h"

#include <filesystem>
#include <fstream>

#include "base/Paths.h"
#include "curves/FileError.h"

namespace orvik {

void WriteOutputFile(const std::string& path, std::string_view bytes) {
  const std::filesystem::path target = PathFromUtf8(path);
  std::filesystem::path beside = target;
  beside += ".new";
  std::error_code error;
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file) {
    std::filesystem::rename(beside, target, error);
    if (!error) return;
  }
  std::error_code ignored;
  std::filesystem::remove(beside, ignored);
  throw FileError("The file " + path + " cannot be written.");
}

void MakeOutputFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(PathFromUtf8(path), error);
  if (!FolderExists(path)) throw FileError("The folder " + path + " cannot be made.");
}

}  // namespace orvik
