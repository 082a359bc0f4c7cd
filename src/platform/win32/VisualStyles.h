// The system's current visual styles, in a host that has not asked for them itself.
#pragma once

#include <windows.h>

namespace orvik {

// While this lives, windows are made with the controls that the module's own manifest names
// (resource 2). Does nothing where the module has none.
class VisualStyles {
 public:
  explicit VisualStyles(HINSTANCE module);
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

}  // namespace orvik
