// The folders that the module works with, settled once while it is loaded.
#pragma once

#include <string>
#include <string_view>

namespace orvik {

class Desktop;

// Each ends with a path separator.
struct ModuleFolders {
  std::string application;  // of the module's own file: curves and help lie there
  std::string documents;    // the user's; empty where there is none
  std::string suite;        // "ORVIK33" below it; empty where it can neither be found nor made
  std::string module;       // "StormwaterReuse" below that, likewise
  std::string recovery;     // of recovery copies; made with the first one, empty where it cannot be
};

// Makes the folders that are not there yet. What cannot be made is left empty, silently.
ModuleFolders SettleFolders(std::string_view applicationFolder, Desktop& desktop);

}  // namespace orvik
