#include "entry/com/TypeLibrary.h"

#include "entry/com/ComError.h"
#include "entry/com/Module.h"

namespace orvik::com {

ComPtr<ITypeLib> LoadModuleTypeLibrary() {
  ComPtr<ITypeLib> library;
  Check(::LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Out()),
        "The type library of the module cannot be read.");
  return library;
}

ComPtr<ITypeInfo> LoadInterfaceType(REFIID iid) {
  ComPtr<ITypeInfo> type;
  Check(LoadModuleTypeLibrary()->GetTypeInfoOfGuid(iid, type.Out()),
        "The interface is not in the type library.");
  return type;
}

}  // namespace orvik::com
