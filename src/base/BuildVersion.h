// The module's version as its windows write it; elsewhere it is kModuleVersion.
#pragma once

#include <string>

namespace orvik {

// Major, minor and build number, the last in four digits at least: "3.3.0001".
std::string BuildVersionText();

}  // namespace orvik
