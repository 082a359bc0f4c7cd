// What the library shows to the system.
#include <olectl.h>
#include <windows.h>

#include <new>
#include <string_view>

#include "entry/com/ClassFactory.h"
#include "entry/com/ComError.h"
#include "entry/com/Registration.h"
#include "entry/com/Wall.h"
#include "platform/win32/ModuleUse.h"

namespace {

using namespace orvik::com;

RegistrationScope ScopeOf(std::wstring_view commandLine) {
  if (commandLine == L"user") return RegistrationScope::User;
  if (commandLine == L"machine") return RegistrationScope::Machine;
  if (commandLine.empty()) return DefaultScope();
  throw ComError(E_INVALIDARG, "The scope of a registration is \"user\" or \"machine\".");
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  const CreateObject create = FindClass(clsid);
  if (!create) return CLASS_E_CLASSNOTAVAILABLE;
  auto* const factory = new (std::nothrow) ClassFactory(create);
  if (!factory) return E_OUTOFMEMORY;
  const HRESULT result = factory->QueryInterface(iid, object);
  factory->Release();
  return result;
}

STDAPI DllCanUnloadNow() {
  return orvik::ModuleUse::IsFree() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  return Wall(GUID_NULL, kModuleSource, [] { RegisterServer(DefaultScope()); });
}

STDAPI DllUnregisterServer() {
  return Wall(GUID_NULL, kModuleSource, [] { UnregisterServerEverywhere(); });
}

// regsvr32 /n /i:user registers for the present user, /i:machine for all; /u with them takes it
// back.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  return Wall(GUID_NULL, kModuleSource, [&] {
    const RegistrationScope scope = ScopeOf(commandLine ? commandLine : L"");
    if (install) {
      RegisterServer(scope);
    } else {
      UnregisterServer(scope);
    }
  });
}
