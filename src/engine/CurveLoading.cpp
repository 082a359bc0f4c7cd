#include "engine/CurveLoading.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "engine/ClimateStations.h"
#include "engine/CurveFile.h"
#include "engine/CurveSet.h"
#include "stream/clsIOStream.h"

namespace orvik {

std::string CurveFolderBelow(const std::string& dataFolder) {
  return dataFolder + "KAV Data" + kPathSeparator;
}

std::string CurveFilePath(const std::string& folder, std::int16_t station) {
  return folder + std::string(Trim(ClimateStationName(station))) + ".crv";
}

LoadedCurves LoadStationCurves(const std::string& folder, std::int16_t station) {
  const std::string file = CurveFilePath(folder, station);
  if (!FolderExists(folder)) return {LoadOutcome::FolderMissing, nullptr};
  if (!FileExists(file)) return {LoadOutcome::FileMissing, nullptr};
  clsIOStream stream;
  auto curves = std::make_shared<CurveSet>();
  if (!stream.OpenFile(file, enumIOStreamMode::AsciiFileInput) || !ReadCurveFile(stream, *curves)) {
    return {LoadOutcome::Unreadable, nullptr};
  }
  return {LoadOutcome::Loaded, std::move(curves)};
}

}  // namespace orvik
