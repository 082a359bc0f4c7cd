// The module's version as its windows show it; everywhere else it is kModuleVersion.
#pragma once

#include <string>

namespace orvik {

// Major, minor and build number, the last with at least four digits: "3.3.0001".
std::string BuildVersionText();

}  // namespace orvik
