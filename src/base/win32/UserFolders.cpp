#include "base/UserFolders.h"

#include <windows.h>

#include <filesystem>

#include "base/Paths.h"

namespace orvik {

std::optional<std::string> UserStateFolder() {
  constexpr const wchar_t* kVariable = L"LOCALAPPDATA";
  std::wstring folder(GetEnvironmentVariableW(kVariable, nullptr, 0), L'\0');
  const DWORD length =
      GetEnvironmentVariableW(kVariable, folder.data(), static_cast<DWORD>(folder.size()));
  if (length == 0 || length >= folder.size()) return std::nullopt;
  folder.resize(length);
  return PathToUtf8(std::filesystem::path(folder));
}

}  // namespace orvik
