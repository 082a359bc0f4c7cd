#include "platform/win32/ThreadWatch.h"

#include <windows.h>

#include <memory>

#include "platform/win32/SystemError.h"

namespace orvik {

// The handle keeps the system from giving the thread's number away; it is signalled at its end.
std::function<bool()> WatchThisThread() {
  HANDLE thread = nullptr;
  const HANDLE process = ::GetCurrentProcess();
  if (!::DuplicateHandle(process, ::GetCurrentThread(), process, &thread, SYNCHRONIZE, FALSE, 0)) {
    ThrowSystemError("The thread cannot be watched");
  }
  const std::shared_ptr<void> owned(thread, &::CloseHandle);
  return [owned] { return ::WaitForSingleObject(owned.get(), 0) == WAIT_TIMEOUT; };
}

}  // namespace orvik
