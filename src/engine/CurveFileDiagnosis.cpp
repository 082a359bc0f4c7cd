#include "engine/CurveFileDiagnosis.h"

#include <fstream>
#include <iterator>

#include "base/Paths.h"

namespace orvik {

std::string DiagnoseCurveFile(const std::string& path) {
  if (!FileExists(path)) return {};
  std::ifstream file(PathFromUtf8(path), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  const bool hasOnlyLineFeeds =
      bytes.find('\n') != std::string::npos && bytes.find('\r') == std::string::npos;
  return hasOnlyLineFeeds ? "its lines must end with CR LF" : "";
}

}  // namespace orvik
