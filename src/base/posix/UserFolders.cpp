#include "base/UserFolders.h"

#include <cstdlib>
#include <string_view>

#include "base/Paths.h"

namespace orvik {
namespace {

// A relative path counts as none.
std::string_view FolderIn(const char* variable) {
  const char* folder = std::getenv(variable);
  return folder != nullptr && *folder == '/' ? std::string_view(folder) : std::string_view();
}

}  // namespace

std::optional<std::string> UserStateFolder() {
  const std::string_view state = FolderIn("XDG_STATE_HOME");
  if (!state.empty()) return std::string(state);
  const std::string_view home = FolderIn("HOME");
  if (home.empty()) return std::nullopt;
  return WithEndingSeparator(std::string(home)) + ".local/state";
}

}  // namespace orvik
