// A project file opened without a window: read, its station's curves loaded, and calculated.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/Hints.h"
#include "design/Project.h"
#include "engine/CurveLoading.h"
#include "engine/FramedCurves.h"

namespace orvik {

struct OpenedProject {
  bool isRead = false;  // as a whole
  // The message boxes that a window would have shown on opening it, in their order.
  std::vector<Message> messages;
  std::vector<Hint> hints;             // about the file and its station's curves
  LoadedCurves station;                // Cleared where the project has no station
  std::optional<FramedCurves> curves;  // of the station, in the frame without a window
  Project project;                     // with its results, as the fields would show it
  Message shown;                       // what the error bar would show
};

// `dataFolder` holds the folder "KAV Data"; it ends with a path separator.
OpenedProject OpenProjectFile(const std::string& path, const std::string& dataFolder);

}  // namespace orvik
