// Writes results so that a failure never leaves half a file.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Writes the bytes beside the target and renames the file over it. Throws FileError; the target is
// then as it was.
void WriteOutputFile(const std::string& path, std::string_view bytes);

// Makes the folder and those above it where they do not exist. Throws FileError.
void MakeOutputFolder(const std::string& path);

}  // namespace orvik
