// What the registry holds about classes, for all users and the present one, in both views.
#pragma once

#include <windows.h>

#include <optional>
#include <set>
#include <string>

namespace orvik::test {

// One line for each key and each value.
using RegistrySnapshot = std::set<std::wstring>;

RegistrySnapshot TakeRegistrySnapshot();

// The lines that only one of the two has, "- " for lost and "+ " for new ones.
std::string Difference(const RegistrySnapshot& before, const RegistrySnapshot& after);

// The text of a value; nothing if there is none.
std::optional<std::wstring> ReadValue(HKEY root, const std::wstring& key, const wchar_t* name);

// Makes a key with an empty default value, and deletes one with all below it.
void WriteKey(HKEY root, const std::wstring& key, REGSAM view);
void RemoveKey(HKEY root, const std::wstring& key, REGSAM view);

}  // namespace orvik::test
