// The type library that the module carries as a resource.
#pragma once

#include <ole2.h>

#include "platform/win32/ComPtr.h"

namespace orvik::com {

// Throws ComError when the library cannot be read. Registration has no part in it: the library is
// taken from the module's own file.
ComPtr<ITypeLib> LoadModuleTypeLibrary();

// The description of one interface of the library.
ComPtr<ITypeInfo> LoadInterfaceType(REFIID iid);

}  // namespace orvik::com
