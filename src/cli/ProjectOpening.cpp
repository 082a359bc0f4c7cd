#include "cli/ProjectOpening.h"

#include "cli/StationQuestion.h"
#include "design/WithoutResults.h"

namespace orvik {

std::optional<OpenedProject> OpenProject(Console& console, const std::string& path,
                                         const std::string& dataFolder) {
  OpenedProject opened = OpenProjectFile(path, dataFolder);
  for (const Message& message : opened.messages) PrintMessage(console, Sentence(message));
  if (opened.isRead && opened.station.outcome == LoadOutcome::Unreadable) {
    PrintWhyNotLoaded(console, opened.station,
                      static_cast<std::int16_t>(opened.project.station + 1));
  }
  PrintHints(console, opened.hints);
  if (!opened.isRead) return std::nullopt;
  if (opened.curves || opened.project.station == kNoStation) return opened;
  return std::nullopt;
}

std::string WhyNoResult(const OpenedProject& opened) {
  return WhyNoResult(opened.project, Sentence(opened.shown));
}

ExitCode PrintMissingResult(Console& console, const OpenedProject& opened) {
  const std::string why = WhyNoResult(opened);
  if (why.empty()) return ExitCode::Done;
  PrintMessage(console, why);
  return ExitCode::Refused;
}

}  // namespace orvik
