#include "engine/CurveFileDiagnosis.h"

#include "base/FileBytes.h"
#include "base/Paths.h"

namespace orvik {

std::string DiagnoseCurveFile(const std::string& path) {
  if (!FileExists(path)) return {};
  const std::string bytes = ReadFileBytes(path).value_or("");
  const bool hasOnlyLineFeeds =
      bytes.find('\n') != std::string::npos && bytes.find('\r') == std::string::npos;
  return hasOnlyLineFeeds ? "its lines must end with CR LF" : "";
}

}  // namespace orvik
