#include "entry/com/LoadedModule.h"

#include "base/Paths.h"
#include "entry/ReuseModule.h"
#include "entry/com/Module.h"
#include "platform/win32/NativeDesktop.h"
#include "platform/win32/NativeToolkit.h"
#include "platform/win32/ThreadWatch.h"
#include "platform/win32/WideText.h"

namespace orvik::com {

ReuseModule& LoadedReuseModule() {
  static NativeDesktop desktop(ThisModule());
  static ReuseModule module(
      FolderOf(Utf8FromWide(ModulePath())), desktop,
      [] { return std::make_unique<NativeToolkit>(ThisModule()); }, &WatchThisThread);
  return module;
}

}  // namespace orvik::com
