// What is wrong with a text file as a whole, whatever it holds.
#pragma once

#include <cstdint>
#include <string_view>

namespace orvik {

enum class TextFault : std::uint8_t {
  None,
  Missing,
  IsFolder,
  Unreadable,  // it cannot be opened, or not be read to its end
  Empty,
  IsUtf16,
  HasOnlyLineFeeds,  // its lines end with LF alone, as editors and version control can leave them
};

// Reads the file to find out: for a file that could not be used.
TextFault FindTextFault(std::string_view path);

}  // namespace orvik
