// The files that kav writes; a failure becomes a sentence.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Throws FileError where the path cannot be written to, as far as that is known before any work is
// done.
void RequireReplaceable(const std::string& path);

// Writes the whole file or nothing of it (base/SafeFile.h). Throws FileError, with the file
// unchanged.
void WriteOutputFile(const std::string& path, std::string_view bytes);

// Makes the folder and those above it where they do not exist. Throws FileError.
void MakeOutputFolder(const std::string& path);

}  // namespace orvik
