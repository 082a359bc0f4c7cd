#include "base/TextFault.h"

#include "base/FileBytes.h"
#include "base/Paths.h"
#include "base/TextEncoding.h"

namespace orvik {
namespace {

bool HasOnlyLineFeeds(std::string_view bytes) {
  return bytes.find('\n') != std::string_view::npos && bytes.find('\r') == std::string_view::npos;
}

}  // namespace

TextFault FindTextFault(std::string_view path) {
  if (FolderExists(path)) return TextFault::IsFolder;
  if (!FileExists(path)) return TextFault::Missing;
  const auto bytes = ReadFileBytes(path);
  if (!bytes) return TextFault::Unreadable;
  if (bytes->empty()) return TextFault::Empty;
  if (IsUtf16(*bytes)) return TextFault::IsUtf16;
  return HasOnlyLineFeeds(*bytes) ? TextFault::HasOnlyLineFeeds : TextFault::None;
}

}  // namespace orvik
