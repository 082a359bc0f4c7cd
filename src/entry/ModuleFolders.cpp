#include "entry/ModuleFolders.h"

#include "base/Paths.h"
#include "platform/Desktop.h"

namespace orvik {
namespace {

constexpr std::string_view kSuite = "ORVIK33";
constexpr std::string_view kModule = "StormwaterReuse";
constexpr std::string_view kRecovery = "Recovery";

std::string ExistingOrNone(const std::string& folder) {
  return FolderExists(folder) ? folder : std::string();
}

// The folder below `parent`, made if need be; empty without a parent.
std::string SettleBelow(const std::string& parent, std::string_view name) {
  if (parent.empty()) return {};
  std::string folder = parent + std::string(name) + kPathSeparator;
  return FolderExists(folder) || MakeDirectory(folder) ? folder : std::string();
}

// Not made here: most runs need none.
std::string RecoveryFolder(Desktop& desktop) {
  const auto state = desktop.StateFolder();
  if (!state) return {};
  std::string folder = WithEndingSeparator(*state);
  for (const std::string_view name : {kSuite, kModule, kRecovery}) {
    folder += std::string(name) + kPathSeparator;
  }
  return folder;
}

}  // namespace

ModuleFolders SettleFolders(std::string_view applicationFolder, Desktop& desktop) {
  ModuleFolders folders;
  folders.application = WithEndingSeparator(std::string(applicationFolder));
  folders.documents =
      ExistingOrNone(WithEndingSeparator(desktop.DocumentsFolder().value_or(std::string())));
  folders.suite = SettleBelow(folders.documents, kSuite);
  folders.module = SettleBelow(folders.suite, kModule);
  folders.recovery = RecoveryFolder(desktop);
  return folders;
}

}  // namespace orvik
