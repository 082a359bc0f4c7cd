// A key of the registry.
#pragma once

#include <windows.h>

#include <string>

namespace orvik::com {

class RegistryKey {
 public:
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() { ::RegCloseKey(key_); }

  // Opens the key for writing, making it and the keys above it where they are missing. Throws
  // ComError.
  RegistryKey(HKEY parent, const std::wstring& path);

  HKEY Get() const { return key_; }
  // An empty `name` is the key's default value.
  void SetText(const std::wstring& name, const std::wstring& text) const;

 private:
  HKEY key_ = nullptr;
};

// `access` may add KEY_WOW64_32KEY or KEY_WOW64_64KEY.
bool KeyExists(HKEY parent, const std::wstring& path, REGSAM access = 0);

// Deletes the key with all below it. A missing key is no failure. Throws ComError.
void DeleteKeyTree(HKEY parent, const std::wstring& path);

// Deletes the key if nothing is in it.
void DeleteKeyIfEmpty(HKEY parent, const std::wstring& path);

}  // namespace orvik::com
