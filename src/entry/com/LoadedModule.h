// The state of the loaded library: one for the process.
#pragma once

namespace orvik {
class ReuseModule;
}

namespace orvik::com {

// Its folders and its window; made on first use, on the real desktop.
ReuseModule& LoadedReuseModule();

}  // namespace orvik::com
