// The library as a module of a host's process: where it lies.
#pragma once

#include <windows.h>

#include <string>

namespace orvik::com {

// The module that this code was linked into.
HMODULE ThisModule();

// The full path of the module that this code was linked into.
std::wstring ModulePath();

}  // namespace orvik::com
