#include "entry/com/ServerDescription.h"

#include <ole2.h>

#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/Module.h"
#include "entry/com/TypeLibrary.h"

namespace orvik::com {
namespace {

constexpr const char* kUnreadable = "The type library of the module cannot be read.";

std::wstring ToText(REFGUID guid) {
  wchar_t text[39] = {};
  ::StringFromGUID2(guid, text, static_cast<int>(std::size(text)));
  return text;
}

struct Documentation {
  std::wstring name;
  std::wstring help;
};

Documentation Read(ITypeLib& library, INT index) {
  Bstr name;
  Bstr help;
  Check(library.GetDocumentation(index, name.Out(), help.Out(), nullptr, nullptr), kUnreadable);
  return {std::wstring(name.Wide()), std::wstring(help.Wide())};
}

GUID GuidOf(ITypeLib& library, UINT index) {
  ComPtr<ITypeInfo> type;
  Check(library.GetTypeInfo(index, type.Out()), kUnreadable);
  TYPEATTR* attributes = nullptr;
  Check(type->GetTypeAttr(&attributes), kUnreadable);
  const GUID guid = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  return guid;
}

void AddType(ServerDescription& server, ITypeLib& library, const std::wstring& libraryName,
             UINT index) {
  TYPEKIND kind{};
  Check(library.GetTypeInfoType(index, &kind), kUnreadable);
  const Documentation type = Read(library, static_cast<INT>(index));
  if (kind == TKIND_COCLASS) {
    server.classes.push_back(
        {ToText(GuidOf(library, index)), libraryName + L"." + type.name, type.help});
  } else if (kind == TKIND_DISPATCH || kind == TKIND_INTERFACE) {
    server.interfaces.push_back({ToText(GuidOf(library, index)), type.name});
  }
}

}  // namespace

ServerDescription DescribeServer() {
  const ComPtr<ITypeLib> library = LoadModuleTypeLibrary();
  TLIBATTR* attributes = nullptr;
  Check(library->GetLibAttr(&attributes), kUnreadable);
  const TLIBATTR copy = *attributes;
  library->ReleaseTLibAttr(attributes);

  const Documentation names = Read(*library.Get(), -1);
  ServerDescription server;
  server.path = ModulePath();
  server.libid = ToText(copy.guid);
  // Both numbers are hexadecimal in the registry.
  wchar_t version[16] = {};
  ::wsprintfW(version, L"%x.%x", copy.wMajorVerNum, copy.wMinorVerNum);
  server.version = version;
  server.description = names.help;
  const UINT count = library->GetTypeInfoCount();
  for (UINT i = 0; i < count; ++i) AddType(server, *library.Get(), names.name, i);
  return server;
}

}  // namespace orvik::com
