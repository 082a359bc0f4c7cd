#include "windows/RegistrySnapshot.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "entry/com/Bstr.h"

namespace orvik::test {
namespace {

void AddValues(RegistrySnapshot& snapshot, HKEY key, const std::wstring& path) {
  wchar_t name[16384];
  std::vector<BYTE> data(65536);
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = std::size(name);
    auto size = static_cast<DWORD>(data.size());
    DWORD type = 0;
    const LSTATUS status =
        ::RegEnumValueW(key, i, name, &nameLength, nullptr, &type, data.data(), &size);
    if (status == ERROR_NO_MORE_ITEMS) return;
    std::wstring line = path + L" | " + std::wstring(name, nameLength) + L" = ";
    if (status == ERROR_SUCCESS && type == REG_SZ) {
      line.append(reinterpret_cast<const wchar_t*>(data.data()), size / sizeof(wchar_t));
    } else {
      line += std::to_wstring(type) + L" of " + std::to_wstring(size) + L" bytes";
    }
    snapshot.insert(line);
  }
}

void AddKey(RegistrySnapshot& snapshot, HKEY parent, const wchar_t* name, const std::wstring& path,
            REGSAM view) {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(parent, name, 0, KEY_READ | view, &key) != ERROR_SUCCESS) return;
  snapshot.insert(path);
  AddValues(snapshot, key, path);
  wchar_t child[256];
  for (DWORD i = 0;; ++i) {
    DWORD length = std::size(child);
    if (::RegEnumKeyExW(key, i, child, &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    AddKey(snapshot, key, child, path + L"\\" + child, view);
  }
  ::RegCloseKey(key);
}

void AddLines(std::string& text, const char* mark, const RegistrySnapshot& of,
              const RegistrySnapshot& without) {
  for (const std::wstring& line : of) {
    if (!without.contains(line)) text += mark + com::Utf8FromWide(line) + "\n";
  }
}

}  // namespace

RegistrySnapshot TakeRegistrySnapshot() {
  RegistrySnapshot snapshot;
  const wchar_t* const classes = L"Software\\Classes";
  AddKey(snapshot, HKEY_LOCAL_MACHINE, classes, L"machine", KEY_WOW64_64KEY);
  AddKey(snapshot, HKEY_LOCAL_MACHINE, classes, L"machine (32)", KEY_WOW64_32KEY);
  AddKey(snapshot, HKEY_CURRENT_USER, classes, L"user", KEY_WOW64_64KEY);
  AddKey(snapshot, HKEY_CURRENT_USER, classes, L"user (32)", KEY_WOW64_32KEY);
  return snapshot;
}

std::string Difference(const RegistrySnapshot& before, const RegistrySnapshot& after) {
  std::string text;
  AddLines(text, "- ", before, after);
  AddLines(text, "+ ", after, before);
  return text;
}

std::optional<std::wstring> ReadValue(HKEY root, const std::wstring& key, const wchar_t* name) {
  wchar_t text[2048];
  DWORD size = sizeof text;
  if (::RegGetValueW(root, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  return text;
}

void WriteKey(HKEY root, const std::wstring& key, REGSAM view) {
  HKEY opened = nullptr;
  if (::RegCreateKeyExW(root, key.c_str(), 0, nullptr, 0, KEY_WRITE | view, nullptr, &opened,
                        nullptr) == ERROR_SUCCESS) {
    ::RegSetValueExW(opened, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(L""),
                     sizeof(wchar_t));
    ::RegCloseKey(opened);
  }
}

void RemoveKey(HKEY root, const std::wstring& key, REGSAM view) {
  HKEY opened = nullptr;
  if (::RegOpenKeyExW(root, key.c_str(), 0, KEY_ALL_ACCESS | view, &opened) != ERROR_SUCCESS) {
    return;
  }
  ::RegDeleteTreeW(opened, nullptr);
  ::RegCloseKey(opened);
  ::RegDeleteKeyExW(root, key.c_str(), view, 0);
}

}  // namespace orvik::test
