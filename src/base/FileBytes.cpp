#include "base/FileBytes.h"

#include <fstream>
#include <iterator>

#include "base/Paths.h"

namespace orvik {

std::optional<std::string> ReadToEnd(std::streambuf& source) {
  try {
    return std::string{std::istreambuf_iterator<char>(&source), std::istreambuf_iterator<char>()};
  } catch (const std::ios_base::failure&) {  // how a file's buffer reports a read error
    return std::nullopt;
  }
}

std::optional<std::string> ReadFileBytes(std::string_view path) {
  std::filebuf file;
  if (!IsWholeName(path)) return std::nullopt;
  if (!file.open(PathFromUtf8(path), std::ios::in | std::ios::binary)) return std::nullopt;
  return ReadToEnd(file);
}

}  // namespace orvik
