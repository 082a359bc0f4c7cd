#include "files/OpenedProject.h"

#include <utility>

#include "base/NumberText.h"
#include "base/RuntimeErrors.h"
#include "design/Calculate.h"
#include "design/FileHints.h"
#include "design/KeptPoint.h"
#include "design/OutcomeMessage.h"
#include "engine/ClimateStations.h"
#include "files/ProjectHints.h"
#include "files/ProjectText.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

ProjectReading ReadProjectFile(const std::string& path) {
  clsIOStream stream;
  if (!stream.OpenFile(path, enumIOStreamMode::AsciiFileInput)) return {};
  return ReadProject(stream);
}

// An index outside the list chooses nothing.
std::int16_t StationOf(const ProjectReading& reading) {
  const std::int16_t index = reading.station.value_or(kNoStation);
  return 0 <= index && index < NumRainfallStations() ? index : kNoStation;
}

Project ToProject(const ProjectReading& reading) {
  Project project;
  project.station = StationOf(reading);
  if (reading.mode) project.Mode(reading.Mode());
  for (const FieldDesign& field : Fields()) {
    project.Text(field.id) = reading.Text(field.id).value_or("");
  }
  return project;
}

void LoadCurves(OpenedProject& opened, const std::string& dataFolder) {
  opened.station.outcome = LoadOutcome::Cleared;
  if (opened.project.station == kNoStation) return;
  const auto station = static_cast<std::int16_t>(opened.project.station + 1);
  const std::string folder = CurveFolderBelow(dataFolder);
  opened.station = LoadStationCurves(folder, station);
  const Message message = MessageOf(opened.station.outcome, folder, station);
  if (message.id != MessageId::None) opened.messages.push_back(message);
  for (Hint& hint : HintsOf(opened.station)) opened.hints.push_back(std::move(hint));
  if (opened.station.curves) {
    opened.curves.emplace(opened.station.curves, ReferenceGeometry(*opened.station.curves));
  }
}

void PlacePoint(OpenedProject& opened, const ProjectReading& reading) {
  const FramedCurves* curves = opened.curves ? &*opened.curves : nullptr;
  DesignPoint& point = opened.project.point;
  try {
    if (reading.point) {
      PlaceUsingRV(point, curves, ParseNumber(reading.point->R), ParseNumber(reading.point->V));
    } else if (reading.keptPoint && opened.project.mode == SolveFor::Interactive) {
      PlaceKeptPoint(point, curves, *reading.keptPoint);
    }
  } catch (const NumericError&) {
    // Curves that cannot be used leave the point without an efficiency.
  }
}

}  // namespace

OpenedProject OpenProjectFile(const std::string& path, const std::string& dataFolder) {
  const ProjectReading reading = ReadProjectFile(path);
  OpenedProject opened;
  opened.isRead = reading.isWhole;
  opened.project = ToProject(reading);
  if (reading.refusal.id != MessageId::None) opened.messages.push_back(reading.refusal);
  opened.hints = HintsOf(reading, path);
  LoadCurves(opened, dataFolder);
  if (!opened.isRead) {
    opened.messages.push_back({MessageId::ProjectFileUnreadable});
    return opened;
  }
  PlacePoint(opened, reading);
  const Result result = Calculate(opened.project, opened.curves ? &*opened.curves : nullptr);
  opened.project = WithResult(std::move(opened.project), result);
  opened.project.keptPoint = PointToKeep(opened.project, reading.OwnPoint());
  if (const auto kept = HintOfKeptPoint(opened.project, opened.curves.has_value())) {
    opened.hints.push_back(*kept);
  }
  opened.shown = result.Shown();
  return opened;
}

}  // namespace orvik
