// The files that kav writes: what could not be done is told in a sentence.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

// Throws FileError where WriteOutputFile would refuse the path without writing anything.
void RequireReplaceable(const std::string& path);

// Writes the whole file or nothing of it (base/SafeFile.h). Throws FileError; the file is then as
// it was.
void WriteOutputFile(const std::string& path, std::string_view bytes);

// Makes the folder and those above it where they do not exist. Throws FileError.
void MakeOutputFolder(const std::string& path);

}  // namespace orvik
