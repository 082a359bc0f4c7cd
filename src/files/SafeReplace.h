// Replaces a file so that the old one is never lost to a failed write.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Writes the bytes to a new file beside `path`, under a random name of its own, and renames it over
// `path`. A link is followed, and the file's permissions are kept. False where any step fails or
// the file there is read-only; the old file is then as it was and nothing new is left behind.
bool ReplaceFile(const std::string& path, std::string_view bytes);

}  // namespace orvik
