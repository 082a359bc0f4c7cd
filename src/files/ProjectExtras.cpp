#include "files/ProjectExtras.h"

#include <string_view>
#include <utility>

#include "base/Text.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

constexpr std::string_view kHeading = "[ORVIK]";
constexpr std::string_view kClosing = "[end]";
constexpr char kSeparator = '=';

}  // namespace

bool WriteExtras(clsIOStream& stream, const ProjectExtras& extras) {
  if (extras.empty()) return true;
  if (!stream.WriteString(kHeading)) return false;
  for (const auto& [name, text] : extras) {
    const std::string folded = FoldLineEnds(text);
    if (!stream.WriteString(std::string(name).append(1, kSeparator).append(Trim(folded)))) {
      return false;
    }
  }
  return stream.WriteString(kClosing);
}

// A file never reports a failed read; so the end is asked for first.
ExtrasReading ReadExtras(clsIOStream& stream) {
  ProjectExtras extras;
  std::string line;
  if (stream.EndOfFile() || !stream.ScanString(line) || Trim(line) != kHeading) return {};
  while (!stream.EndOfFile() && stream.ScanString(line)) {
    if (Trim(line) == kClosing) return {std::move(extras)};
    const auto separator = line.find(kSeparator);
    if (separator == std::string::npos) continue;
    const std::string_view text = std::string_view(line).substr(separator + 1);
    extras.insert_or_assign(std::string(Trim(std::string_view(line).substr(0, separator))),
                            std::string(Trim(text)));
  }
  return {{}, false};
}

}  // namespace orvik
