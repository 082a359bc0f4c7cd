// Loads a station's design curves from the folder of curve files.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/TextFault.h"
#include "engine/CurveFile.h"

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
  LoadOutcome outcome = LoadOutcome::Cleared;
  std::shared_ptr<const CurveSet> curves = nullptr;  // null unless Loaded
  std::string path = {};                             // of the folder or file that was looked for
  CurveReading reading = {};                         // what was found in the file
  TextFault textFault = TextFault::None;             // of an unreadable file, as far as it has one
};

// The folder of curve files below a data folder that ends with a path separator; so does the
// result.
std::string CurveFolderBelow(const std::string& dataFolder);

// Reads the curve file of the station of this number (SubscriptError where there is none) in a
// folder that ends with a path separator.
LoadedCurves LoadStationCurves(const std::string& folder, std::int16_t station);

// Reads one curve file.
LoadedCurves LoadCurveFile(const std::string& path);

}  // namespace orvik
