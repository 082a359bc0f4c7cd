// Ways to the library's objects for the tests of its clients.
#pragma once

#include <ole2.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "platform/win32/ComPtr.h"

namespace orvik::test {

// The thread's apartment while it lives.
class Apartment {
 public:
  Apartment() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }

 private:
  HRESULT result_;
};

// The library loaded by its path, unloaded at the end.
class LoadedServer {
 public:
  LoadedServer();
  LoadedServer(const LoadedServer&) = delete;
  LoadedServer& operator=(const LoadedServer&) = delete;
  ~LoadedServer();

  HMODULE Module() const { return module_; }
  HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object) const;
  HRESULT CanUnloadNow() const;
  HRESULT Install(bool install, const wchar_t* commandLine) const;

 private:
  template <class Function>
  Function* Find(const char* name) const;

  HMODULE module_;
};

// An activation context of a manifest, active while it lives.
class ManifestContext {
 public:
  explicit ManifestContext(const std::wstring& manifest);
  ManifestContext(const ManifestContext&) = delete;
  ManifestContext& operator=(const ManifestContext&) = delete;
  ~ManifestContext();

  bool IsActive() const { return active_; }

 private:
  HANDLE context_;
  bool active_ = false;
  ULONG_PTR cookie_ = 0;
};

// The library beside this program's working directory, and another file there.
std::wstring BuildPath(const wchar_t* name);

// Runs regsvr32 on the library with these options; its exit code.
DWORD RunRegsvr32(const std::wstring& options = {});

// One way for a client to create the class. `Open` makes what must live as long as the object.
struct Route {
  std::string name;
  std::function<std::shared_ptr<void>()> open;
  std::function<HRESULT(REFIID iid, void** object)> create;

  friend void PrintTo(const Route& route, std::ostream* out) { *out << route.name; }
};

// The routes that a test program takes; each program has its own.
std::vector<Route> TestedRoutes();

// By ProgID, as CreateObject does, from the registry or the active context.
HRESULT CreateByProgId(REFIID iid, void** object);

}  // namespace orvik::test
