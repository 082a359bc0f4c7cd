#include "windows/Server.h"

#include <filesystem>

namespace orvik::test {

std::wstring BuildPath(const wchar_t* name) {
  return (std::filesystem::current_path() / name).wstring();
}

LoadedServer::LoadedServer() : module_(::LoadLibraryW(BuildPath(L"StReuse.dll").c_str())) {}

LoadedServer::~LoadedServer() {
  if (module_) ::FreeLibrary(module_);
}

template <class Function>
Function* LoadedServer::Find(const char* name) const {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
}

HRESULT LoadedServer::GetClassObject(REFCLSID clsid, REFIID iid, void** object) const {
  return Find<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(clsid, iid, object);
}

HRESULT LoadedServer::CanUnloadNow() const {
  return Find<HRESULT WINAPI()>("DllCanUnloadNow")();
}

HRESULT LoadedServer::Install(bool install, const wchar_t* commandLine) const {
  return Find<HRESULT WINAPI(BOOL, LPCWSTR)>("DllInstall")(install, commandLine);
}

ManifestContext::ManifestContext(const std::wstring& manifest) {
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.lpSource = manifest.c_str();
  context_ = ::CreateActCtxW(&description);
  if (context_ != INVALID_HANDLE_VALUE) active_ = ::ActivateActCtx(context_, &cookie_) != FALSE;
}

ManifestContext::~ManifestContext() {
  if (active_) ::DeactivateActCtx(0, cookie_);
  if (context_ != INVALID_HANDLE_VALUE) ::ReleaseActCtx(context_);
}

DWORD RunRegsvr32(const std::wstring& options) {
  std::wstring command = L"regsvr32.exe /s " + options + L" \"" + BuildPath(L"StReuse.dll") + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
    return ::GetLastError();
  }
  ::WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 1;
  ::GetExitCodeProcess(process.hProcess, &code);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return code;
}

HRESULT CreateByProgId(REFIID iid, void** object) {
  CLSID clsid{};
  const HRESULT found = ::CLSIDFromProgID(L"StReuse.clsIOStream", &clsid);
  if (FAILED(found)) return found;
  return ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, iid, object);
}

}  // namespace orvik::test
