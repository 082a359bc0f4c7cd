#include "entry/com/RegistryKey.h"

#include "entry/com/ComError.h"

namespace orvik::com {
namespace {

void CheckRegistry(LSTATUS status, const char* sentence) {
  if (status != ERROR_SUCCESS) {
    throw ComError(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), sentence);
  }
}

}  // namespace

RegistryKey::RegistryKey(HKEY parent, const std::wstring& path) {
  CheckRegistry(::RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_READ | KEY_WRITE, nullptr, &key_, nullptr),
                "A registry key cannot be written.");
}

void RegistryKey::SetText(const std::wstring& name, const std::wstring& text) const {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  CheckRegistry(::RegSetValueExW(key_, name.c_str(), 0, REG_SZ,
                                 reinterpret_cast<const BYTE*>(text.c_str()), bytes),
                "A registry value cannot be written.");
}

bool KeyExists(HKEY parent, const std::wstring& path, REGSAM access) {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ | access, &key) != ERROR_SUCCESS) {
    return false;
  }
  ::RegCloseKey(key);
  return true;
}

void DeleteKeyTree(HKEY parent, const std::wstring& path) {
  const LSTATUS status = ::RegDeleteTreeW(parent, path.c_str());
  if (status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND) return;
  CheckRegistry(status, "A registry key cannot be deleted.");
}

void DeleteKeyIfEmpty(HKEY parent, const std::wstring& path) {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  DWORD subkeys = 0;
  DWORD values = 0;
  const LSTATUS status = ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subkeys, nullptr,
                                            nullptr, &values, nullptr, nullptr, nullptr, nullptr);
  ::RegCloseKey(key);
  if (status == ERROR_SUCCESS && subkeys == 0 && values == 0) {
    ::RegDeleteKeyW(parent, path.c_str());
  }
}

}  // namespace orvik::com
