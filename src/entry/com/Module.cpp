#include "entry/com/Module.h"

#include "entry/com/ComError.h"

namespace orvik::com {

// An address inside this module tells the loader which module is meant.
HMODULE ThisModule() {
  HMODULE module = nullptr;
  const DWORD flags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!::GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&ThisModule), &module)) {
    throw ComError(HRESULT_FROM_WIN32(::GetLastError()), "The module cannot be found.");
  }
  return module;
}

std::wstring ModulePath() {
  const HMODULE module = ThisModule();
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = ::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) {
      throw ComError(HRESULT_FROM_WIN32(::GetLastError()), "The module's path cannot be read.");
    }
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

}  // namespace orvik::com
