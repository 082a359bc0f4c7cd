#include "base/Paths.h"

#include <type_traits>

namespace orvik {

bool IsWholeName(std::string_view path) {
  return path.find('\0') == std::string_view::npos;
}

std::filesystem::path PathFromUtf8(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

std::string AsciiOf(const std::filesystem::path& path) {
  constexpr unsigned kLastAscii = 0x7F;
  std::string text;
  for (const auto unit : path.native()) {
    if (static_cast<std::make_unsigned_t<std::filesystem::path::value_type>>(unit) > kLastAscii)
      return {};
    text += static_cast<char>(unit);
  }
  return text;
}

std::string PathToUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string WithEndingSeparator(std::string folder) {
  if (!folder.empty() && folder.back() != '/' && folder.back() != kPathSeparator) {
    folder += kPathSeparator;
  }
  return folder;
}

std::string FileNameOf(std::string_view path) {
  return PathToUtf8(PathFromUtf8(path).filename());
}

std::string FolderOf(std::string_view path) {
  return WithEndingSeparator(PathToUtf8(PathFromUtf8(path).parent_path()));
}

bool FolderExists(std::string_view path) {
  std::error_code error;
  return IsWholeName(path) && std::filesystem::is_directory(PathFromUtf8(path), error);
}

bool FileExists(std::string_view path) {
  std::error_code error;
  return IsWholeName(path) && std::filesystem::is_regular_file(PathFromUtf8(path), error);
}

bool IsSameFile(std::string_view path, std::string_view other) {
  std::error_code error;
  if (path == other) return true;
  return IsWholeName(path) && IsWholeName(other) &&
         std::filesystem::equivalent(PathFromUtf8(path), PathFromUtf8(other), error);
}

bool MakeDirectory(std::string_view path) {
  std::error_code error;
  return IsWholeName(path) && std::filesystem::create_directory(PathFromUtf8(path), error) &&
         !error;
}

}  // namespace orvik
