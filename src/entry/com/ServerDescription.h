// What the registry has to know of the module, read from its own type library: a class that is
// added there is registered without another list.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace orvik::com {

struct ServerClass {
  std::wstring clsid;
  std::wstring progId;  // library and class name, "StReuse.clsIOStream"
  std::wstring description;
};

struct ServerInterface {
  std::wstring iid;
  std::wstring name;
};

struct ServerDescription {
  std::wstring path;   // the module's file
  std::wstring libid;  // identifiers are in braces
  std::wstring version;
  std::wstring description;
  std::vector<ServerClass> classes;
  std::vector<ServerInterface> interfaces;
};

// Throws ComError when the module's type library cannot be read.
ServerDescription DescribeServer();

}  // namespace orvik::com
