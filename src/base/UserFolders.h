// The user's own folders for what programs keep.
#pragma once

#include <optional>
#include <string>

namespace orvik {

// For what a program keeps between two runs and nobody need see: %LOCALAPPDATA% on Windows,
// $XDG_STATE_HOME or ~/.local/state elsewhere. It need not exist yet. Nothing where the system does
// not say.
std::optional<std::string> UserStateFolder();

}  // namespace orvik
