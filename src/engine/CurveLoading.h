// Loads a station's design curves from the folder of curve files.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace orvik {

struct CurveSet;

enum class LoadOutcome : std::uint8_t {
  Loaded,
  FolderMissing,
  FileMissing,
  Cleared,     // no station was asked for
  Unreadable,  // the file cannot be opened, or cannot be used
};

struct LoadedCurves {
  LoadOutcome outcome = LoadOutcome::Unreadable;
  std::shared_ptr<const CurveSet> curves;  // null unless Loaded
};

// The folder of curve files below a data folder that ends with a path separator; so does the
// result.
std::string CurveFolderBelow(const std::string& dataFolder);

// The station's curve file in a folder that ends with a path separator.
std::string CurveFilePath(const std::string& folder, std::int16_t station);

// Reads the curve file of the station of this number (SubscriptError where there is none) in a
// folder that ends with a path separator.
LoadedCurves LoadStationCurves(const std::string& folder, std::int16_t station);

}  // namespace orvik
