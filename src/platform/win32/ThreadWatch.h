// Whether a thread still runs.
#pragma once

#include <functional>

namespace orvik {

// Watches the thread that calls this: the answer is true until that thread has ended, however it
// ended. Throws std::system_error where the system has no handle left.
std::function<bool()> WatchThisThread();

}  // namespace orvik
