// A project file opened without a window: read, its station's curves loaded, and calculated.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/Project.h"
#include "engine/CurveLoading.h"
#include "engine/FramedCurves.h"

namespace orvik {

struct OpenedProject {
  bool isRead = false;  // as a whole
  // What a window would have told in message boxes while it was opened, in their order.
  std::vector<Message> messages;
  LoadedCurves station;                // Cleared where the project has no station
  std::optional<FramedCurves> curves;  // of the station, in the frame without a window
  Project project;                     // with its results, as the fields would show it
  Message shown;                       // what the error bar would show
};

// `dataFolder` holds the folder "KAV Data"; it ends with a path separator.
OpenedProject OpenProjectFile(const std::string& path, const std::string& dataFolder);

}  // namespace orvik
