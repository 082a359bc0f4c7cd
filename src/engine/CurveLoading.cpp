#include "engine/CurveLoading.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "engine/ClimateStations.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"

namespace orvik {

std::string CurveFolderBelow(const std::string& dataFolder) {
  return dataFolder + "KAV Data" + kPathSeparator;
}

LoadedCurves LoadStationCurves(const std::string& folder, std::int16_t station) {
  const std::string path = folder + std::string(Trim(ClimateStationName(station))) + ".crv";
  if (!FolderExists(folder)) return {.outcome = LoadOutcome::FolderMissing, .path = folder};
  return LoadCurveFile(path);
}

LoadedCurves LoadCurveFile(const std::string& path) {
  if (!FileExists(path)) return {.outcome = LoadOutcome::FileMissing, .path = path};
  LoadedCurves loaded{.outcome = LoadOutcome::Unreadable, .path = path};
  clsIOStream stream;
  auto curves = std::make_shared<CurveSet>();
  stream.OpenFile(path, enumIOStreamMode::AsciiFileInput);
  loaded.reading = ReadCurveFile(stream, *curves);
  if (loaded.reading.IsUsable()) {
    loaded.outcome = LoadOutcome::Loaded;
    loaded.curves = std::move(curves);
  } else {
    loaded.textFault = FindTextFault(path);
  }
  return loaded;
}

}  // namespace orvik
