#include "support/TempFolder.h"

#include <fstream>
#include <iterator>
#include <random>

#include "base/Paths.h"

namespace orvik::test {

TempFolder::TempFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("orvik-test-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Path() const {
  return WithEndingSeparator(PathToUtf8(path_));
}

std::string TempFolder::Write(std::string_view name, std::string_view bytes) const {
  std::string path = *this / name;
  std::filesystem::create_directories(PathFromUtf8(path).parent_path());
  std::ofstream(PathFromUtf8(path), std::ios::binary) << bytes;
  return path;
}

std::string ReadBytes(const std::string& path) {
  std::ifstream file(PathFromUtf8(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace orvik::test
