// A folder of its own for one test, gone with it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvik::test {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // The folder with a separator at its end.
  std::string Path() const;
  std::string operator/(std::string_view name) const { return Path() + std::string(name); }

  // Writes the bytes as they are; folders on the way are made. Returns the file's path.
  std::string Write(std::string_view name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

// The bytes of a file, empty if it cannot be read.
std::string ReadBytes(const std::string& path);

}  // namespace orvik::test
