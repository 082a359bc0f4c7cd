// Writes results so that a failure never leaves half a file.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Throws FileError where the path is taken by something that is not a file: a folder, a device, a
// pipe, links in a circle.
void RequireReplaceable(const std::string& path);

// Writes the bytes to a new file beside the target and renames it over the target, or over what the
// target links to. Throws FileError; the target is then as it was.
void WriteOutputFile(const std::string& path, std::string_view bytes);

// Makes the folder and those above it where they do not exist. Throws FileError.
void MakeOutputFolder(const std::string& path);

}  // namespace orvik
