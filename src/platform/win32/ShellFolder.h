// The user's folders, asked of the shell's automation object.
#pragma once

#include <optional>
#include <string>

namespace orvik {

// The path of the personal (documents) folder in UTF-8; nothing where the shell cannot tell it.
std::optional<std::string> ShellDocumentsFolder();

}  // namespace orvik
