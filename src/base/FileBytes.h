// The bytes of a whole file.
#pragma once

#include <optional>
#include <streambuf>
#include <string>
#include <string_view>

namespace orvik {

// Nothing where the file cannot be opened, is a folder, or a read fails on the way: half a file
// must not be taken for the whole.
std::optional<std::string> ReadFileBytes(std::string_view path);

// Everything from the present position on; nothing where the source throws.
std::optional<std::string> ReadToEnd(std::streambuf& source);

}  // namespace orvik
