#include "base/BuildVersion.h"

#include "base/ModuleVersion.h"
#include "base/NumberText.h"

namespace orvik {

std::string BuildVersionText() {
  return std::to_string(kMajorVersion) + "." + std::to_string(kMinorVersion) + "." +
         WithLeadingZeros(kBuildNumber, 4);
}

}  // namespace orvik
