#include "entry/ModuleFolders.h"

#include "base/Paths.h"
#include "platform/Desktop.h"

namespace orvik {
namespace {

std::string ExistingOrNone(const std::string& folder) {
  return FolderExists(folder) ? folder : std::string();
}

// The folder below `parent`, made if need be; empty without a parent.
std::string SettleBelow(const std::string& parent, std::string_view name) {
  if (parent.empty()) return {};
  std::string folder = parent + std::string(name) + kPathSeparator;
  return FolderExists(folder) || MakeDirectory(folder) ? folder : std::string();
}

}  // namespace

ModuleFolders SettleFolders(std::string_view applicationFolder, Desktop& desktop) {
  ModuleFolders folders;
  folders.application = WithEndingSeparator(std::string(applicationFolder));
  folders.documents =
      ExistingOrNone(WithEndingSeparator(desktop.DocumentsFolder().value_or(std::string())));
  folders.suite = SettleBelow(folders.documents, "ORVIK33");
  folders.module = SettleBelow(folders.suite, "StormwaterReuse");
  return folders;
}

}  // namespace orvik
