#include "platform/win32/ShellFolder.h"

#include <ole2.h>
#include <shldisp.h>

#include <memory>

#include "platform/win32/WideText.h"

namespace orvik {
namespace {

struct ReleaseInterface {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Owned = std::unique_ptr<Interface, ReleaseInterface>;

struct FreeString {
  void operator()(OLECHAR* text) const { ::SysFreeString(text); }
};
using OwnedString = std::unique_ptr<OLECHAR, FreeString>;

// Initialises COM on this thread while it lives; a host that has done so already keeps its own.
class ComScope {
 public:
  ComScope() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComScope() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;

 private:
  HRESULT result_;
};

// What `ask` writes into its out parameter; null where it fails.
template <typename Interface, typename Ask>
Owned<Interface> Get(Ask ask) {
  Interface* found = nullptr;
  if (FAILED(ask(&found))) return nullptr;
  return Owned<Interface>(found);
}

Owned<Folder> PersonalFolder() {
  CLSID shellClass{};
  if (FAILED(::CLSIDFromProgID(L"Shell.Application", &shellClass))) return nullptr;
  const auto shell = Get<IShellDispatch>([&](IShellDispatch** out) {
    return ::CoCreateInstance(shellClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IShellDispatch),
                              reinterpret_cast<void**>(out));
  });
  if (!shell) return nullptr;
  VARIANT place{};
  place.vt = VT_I4;
  place.lVal = ssfPERSONAL;
  return Get<Folder>([&](Folder** out) { return shell->NameSpace(place, out); });
}

}  // namespace

std::optional<std::string> ShellDocumentsFolder() {
  const ComScope com;
  const auto folder = PersonalFolder();
  if (!folder) return std::nullopt;
  const auto folder2 = Get<Folder2>([&](Folder2** out) {
    return folder->QueryInterface(__uuidof(Folder2), reinterpret_cast<void**>(out));
  });
  if (!folder2) return std::nullopt;
  const auto self = Get<FolderItem>([&](FolderItem** out) { return folder2->get_Self(out); });
  BSTR path = nullptr;
  if (!self || FAILED(self->get_Path(&path)) || !path) return std::nullopt;
  const OwnedString owned(path);
  return Utf8FromWide({path, ::SysStringLen(path)});
}

}  // namespace orvik
