// Paths as UTF-8 text, and simple questions to the file system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvik {

// The separator that ends a folder's text: "\" on Windows, "/" elsewhere.
inline constexpr char kPathSeparator = std::filesystem::path::preferred_separator;

std::filesystem::path PathFromUtf8(std::string_view text);
std::string PathToUtf8(const std::filesystem::path& path);

// The path as text where it consists of ASCII alone, else empty: for names of any files, which on
// Windows need not be text at all. Never throws where PathToUtf8 would.
std::string AsciiOf(const std::filesystem::path& path);

// False for a path with a NUL inside: the system would cut the path there and use another file.
bool IsWholeName(std::string_view path);

// `folder` with a separator at its end; the empty text stays empty.
std::string WithEndingSeparator(std::string folder);

// The two parts of a file's path: its name with the extension, and its folder with a separator at
// the end (empty where the path names none).
std::string FileNameOf(std::string_view path);
std::string FolderOf(std::string_view path);

// False also where the question itself fails (no permission, a path that the system cannot read).
bool FolderExists(std::string_view path);
bool FileExists(std::string_view path);

// True where both name one file that exists, by whatever ways, or are the same text.
bool IsSameFile(std::string_view path, std::string_view other);

// Makes one folder. False where it is there already or cannot be made.
bool MakeDirectory(std::string_view path);

}  // namespace orvik
