#include "base/VersionText.h"

#include "base/ModuleVersion.h"

namespace orvik {

std::string VersionText() {
  const std::string build = std::to_string(kBuildNumber);
  return std::to_string(kMajorVersion) + "." + std::to_string(kMinorVersion) + "." +
         std::string(build.size() < 4 ? 4 - build.size() : 0, '0') + build;
}

}  // namespace orvik
