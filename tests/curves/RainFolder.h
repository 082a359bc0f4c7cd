// Where the stations' rainfall records lie, if they are at hand.
#pragma once

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "base/Paths.h"

namespace orvik::test {

// The folder with a separator at its end: the environment's ORVIK_RAIN_DIR, else the build's. Says
// so on standard output where there is none.
inline std::optional<std::string> FindRainFolder() {
  const char* given = std::getenv("ORVIK_RAIN_DIR");
  std::string folder = WithEndingSeparator(given == nullptr ? ORVIK_RAIN_DIR : given);
  if (FolderExists(folder)) return folder;
  std::cout << "The rainfall records are not at hand (" << folder << "): not compared with them.\n";
  return std::nullopt;
}

}  // namespace orvik::test
