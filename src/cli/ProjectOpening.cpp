#include "cli/ProjectOpening.h"

#include "cli/StationQuestion.h"

namespace orvik {

std::string ChosenItem(const ComboBox& list) {
  return list.List(list.ListIndex());
}

bool OpenProject(Console& console, Form1& window, const HeadlessDesktop& desktop,
                 const std::string& path) {
  const bool isRead = window.Files().OpenProject(path);
  for (const auto& message : desktop.Messages()) PrintMessage(console, message.text);
  if (!isRead) return false;
  const std::string station = ChosenItem(*window.Fields().cmbClimateStation);
  if (station.empty() || window.Chart().IsLoaded()) return true;
  if (desktop.Messages().empty()) {
    PrintMessage(console, DescribeDamage(window.Chart(), station));
  }
  return false;
}

}  // namespace orvik
