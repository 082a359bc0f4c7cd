// The classes that a host can create.
#pragma once

#include <windows.h>

namespace orvik::com {

// Makes an object and answers with the interface asked for.
using CreateObject = HRESULT (*)(REFIID iid, void** object);

// Null for a class that is not of this module.
CreateObject FindClass(REFCLSID clsid);

}  // namespace orvik::com
