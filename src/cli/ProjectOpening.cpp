#include "cli/ProjectOpening.h"

#include "cli/StationQuestion.h"
#include "design/WithoutResults.h"

namespace orvik {

std::optional<OpenedProject> OpenProject(Console& console, const std::string& path,
                                         const std::string& dataFolder) {
  OpenedProject opened = OpenProjectFile(path, dataFolder);
  for (const Message& message : opened.messages) PrintMessage(console, Sentence(message));
  if (!opened.isRead) return std::nullopt;
  if (opened.curves || opened.project.station == kNoStation) return opened;
  if (opened.messages.empty()) {
    PrintMessage(console, DescribeDamage(CurveFolderBelow(dataFolder),
                                         static_cast<std::int16_t>(opened.project.station + 1)));
  }
  return std::nullopt;
}

ExitCode PrintMissingResult(Console& console, const OpenedProject& opened) {
  const std::string why = WhyNoResult(opened.project, Sentence(opened.shown));
  if (why.empty()) return ExitCode::Done;
  PrintMessage(console, why);
  return ExitCode::Refused;
}

}  // namespace orvik
