// A file that did not exist before: made exclusively, so that two programs can never write into
// one, and flushed to the disk.
#pragma once

#include <filesystem>
#include <string_view>

namespace orvik {

enum class NewFileOutcome {
  Written,
  NameTaken,  // something has this name already; it is as it was
  Failed,     // nothing is left behind
};

// Makes the file and writes the bytes to the disk.
NewFileOutcome WriteNewFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace orvik
