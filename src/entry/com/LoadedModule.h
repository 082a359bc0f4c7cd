// The state of the loaded library: one for the process.
#pragma once

#include "entry/ReuseModule.h"

namespace orvik::com {

// Its folders and its window; made on first use, on the real desktop.
ReuseModule& LoadedReuseModule();

}  // namespace orvik::com
