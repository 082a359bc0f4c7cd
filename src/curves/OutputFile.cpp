#include "curves/OutputFile.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "base/Paths.h"
#include "curves/FileError.h"

namespace orvik {
namespace {

constexpr int kMostLinks = 40;  // one to the next; more are a circle

// What the link at the end of the path leads to, also where nothing is there yet.
std::filesystem::path ResolveLinks(std::filesystem::path path) {
  std::error_code error;
  for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(path, error); ++i) {
    const std::filesystem::path next = std::filesystem::read_symlink(path, error);
    if (error) break;
    path = path.parent_path() / next;
  }
  return path;
}

std::string RandomName() {
  std::random_device random;
  std::array<char, 16> digits{};
  char* end = std::to_chars(digits.data(), digits.data() + digits.size(), random(), 16).ptr;
  return "kav-" + std::string(digits.data(), end) + ".tmp";
}

// A path in the target's folder that nothing has.
std::filesystem::path UnusedPathBeside(const std::filesystem::path& target) {
  std::filesystem::path path;
  std::error_code error;
  do {
    path = target.parent_path() / RandomName();
  } while (std::filesystem::exists(std::filesystem::symlink_status(path, error)));
  return path;
}

}  // namespace

void RequireReplaceable(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(PathFromUtf8(path), error);
  if (error == std::errc::too_many_symbolic_link_levels) {
    throw FileError("The file " + path + " cannot be written: its links lead in a circle.");
  }
  if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status)) return;
  const bool isFolder = std::filesystem::is_directory(status);
  throw FileError("The file " + path + " cannot be written: " +
                  (isFolder ? "it is a folder." : "it is a device or a pipe, not a file."));
}

void WriteOutputFile(const std::string& path, std::string_view bytes) {
  RequireReplaceable(path);
  const std::filesystem::path target = ResolveLinks(PathFromUtf8(path));
  const std::filesystem::path beside = UnusedPathBeside(target);
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
