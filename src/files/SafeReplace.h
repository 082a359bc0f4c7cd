// Replaces a file so that the old one is never lost to a failed write.
#pragma once

#include <functional>
#include <string>

namespace orvik {

// Lets `write` make a file beside `path`, checks that it holds exactly `expected` (a stream does
// not tell a full disk), and renames it over `path`. A link is followed, and the file's permissions
// are kept. False where any step fails or the file there is read-only; the old file is then as it
// was and nothing new is left behind.
bool ReplaceFile(const std::string& path, const std::string& expected,
                 const std::function<bool(const std::string& besides)>& write);

}  // namespace orvik
