#include "entry/com/Registration.h"

#include <windows.h>

#include <string>

#include "entry/com/ComError.h"
#include "entry/com/RegistryKey.h"
#include "entry/com/ServerDescription.h"

namespace orvik::com {
namespace {

const std::wstring kClasses = L"Software\\Classes";
// The system's own marshaller for interfaces that a type library describes.
const std::wstring kAutomationMarshaller = L"{00020424-0000-0000-C000-000000000046}";

#ifdef _WIN64
const std::wstring kPlatform = L"win64";
constexpr REGSAM kOtherView = KEY_WOW64_32KEY;
#else
const std::wstring kPlatform = L"win32";
constexpr REGSAM kOtherView = KEY_WOW64_64KEY;
#endif

HKEY Root(RegistrationScope scope) {
  return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring ClassPath(const ServerClass& type) {
  return L"CLSID\\" + type.clsid;
}

std::wstring InterfacePath(const ServerInterface& type) {
  return L"Interface\\" + type.iid;
}

std::wstring LibraryPath(const ServerDescription& server) {
  return L"TypeLib\\" + server.libid;
}

std::wstring LibraryVersionPath(const ServerDescription& server) {
  return LibraryPath(server) + L"\\" + server.version;
}

// Writes the default value of a key.
void Write(const RegistryKey& parent, const std::wstring& path, const std::wstring& text) {
  RegistryKey(parent.Get(), path).SetText(L"", text);
}

void WriteClass(const RegistryKey& classes, const ServerDescription& server,
                const ServerClass& type) {
  const RegistryKey key(classes.Get(), ClassPath(type));
  key.SetText(L"", type.description);
  const RegistryKey place(key.Get(), L"InprocServer32");
  place.SetText(L"", server.path);
  place.SetText(L"ThreadingModel", L"Apartment");
  Write(key, L"ProgID", type.progId);
  Write(key, L"TypeLib", server.libid);
  Write(key, L"Version", server.version);
  Write(key, L"Programmable", L"");

  Write(classes, type.progId, type.description);
  Write(classes, type.progId + L"\\CLSID", type.clsid);
}

void WriteInterface(const RegistryKey& classes, const ServerDescription& server,
                    const ServerInterface& type) {
  const RegistryKey key(classes.Get(), InterfacePath(type));
  key.SetText(L"", type.name);
  Write(key, L"ProxyStubClsid32", kAutomationMarshaller);
  const RegistryKey library(key.Get(), L"TypeLib");
  library.SetText(L"", server.libid);
  library.SetText(L"Version", server.version);
}

void WriteLibrary(const RegistryKey& classes, const ServerDescription& server) {
  const RegistryKey key(classes.Get(), LibraryVersionPath(server));
  key.SetText(L"", server.description);
  Write(key, L"0\\" + kPlatform, server.path);
  Write(key, L"FLAGS", L"0");
  Write(key, L"HELPDIR", server.path.substr(0, server.path.find_last_of(L'\\')));
}

// The ProgID leads both builds' clients to the class, so it stays while the other build has one.
void DeleteClass(const RegistryKey& classes, RegistrationScope scope, const ServerClass& type) {
  DeleteKeyTree(classes.Get(), ClassPath(type));
  if (!KeyExists(Root(scope), kClasses + L"\\" + ClassPath(type), kOtherView)) {
    DeleteKeyTree(classes.Get(), type.progId);
  }
}

// One key serves both builds, with one entry for each.
void DeleteLibrary(const RegistryKey& classes, const ServerDescription& server) {
  const std::wstring languages = LibraryVersionPath(server) + L"\\0";
  DeleteKeyTree(classes.Get(), languages + L"\\" + kPlatform);
  DeleteKeyIfEmpty(classes.Get(), languages);
  if (KeyExists(classes.Get(), languages)) return;
  DeleteKeyTree(classes.Get(), LibraryVersionPath(server));
  DeleteKeyIfEmpty(classes.Get(), LibraryPath(server));
}

void Delete(const ServerDescription& server, RegistrationScope scope) {
  const RegistryKey classes(Root(scope), kClasses);
  for (const ServerClass& type : server.classes) DeleteClass(classes, scope, type);
  for (const ServerInterface& type : server.interfaces) {
    DeleteKeyTree(classes.Get(), InterfacePath(type));
  }
  DeleteLibrary(classes, server);
  // A user's own part of the registry may not have had these before.
  for (const wchar_t* shared : {L"CLSID", L"Interface", L"TypeLib"}) {
    DeleteKeyIfEmpty(classes.Get(), shared);
  }
}

bool IsRegistered(const ServerDescription& server, RegistrationScope scope) {
  for (const ServerClass& type : server.classes) {
    if (KeyExists(Root(scope), kClasses + L"\\" + ClassPath(type))) return true;
  }
  return false;
}

}  // namespace

RegistrationScope DefaultScope() {
  HANDLE token = nullptr;
  if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token)) {
    return RegistrationScope::User;
  }
  TOKEN_ELEVATION elevation{};
  DWORD size = 0;
  const BOOL known =
      ::GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
  ::CloseHandle(token);
  return known && elevation.TokenIsElevated ? RegistrationScope::Machine : RegistrationScope::User;
}

void RegisterServer(RegistrationScope scope) {
  const ServerDescription server = DescribeServer();
  try {
    const RegistryKey classes(Root(scope), kClasses);
    for (const ServerClass& type : server.classes) WriteClass(classes, server, type);
    for (const ServerInterface& type : server.interfaces) WriteInterface(classes, server, type);
    WriteLibrary(classes, server);
  } catch (const ComError&) {
    try {
      Delete(server, scope);
    } catch (const ComError&) {
      // The first failure is the one to tell; where writing is refused, nothing was written.
    }
    throw;
  }
}

void UnregisterServer(RegistrationScope scope) {
  Delete(DescribeServer(), scope);
}

void UnregisterServerEverywhere() {
  const ServerDescription server = DescribeServer();
  Delete(server, RegistrationScope::User);
  if (DefaultScope() == RegistrationScope::Machine) {
    Delete(server, RegistrationScope::Machine);
  } else if (IsRegistered(server, RegistrationScope::Machine)) {
    throw ComError(E_ACCESSDENIED, "The module is registered for all users.");
  }
}

}  // namespace orvik::com
