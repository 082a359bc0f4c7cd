#include "files/ProjectFile.h"

#include <algorithm>

#include "chart/ctrlStormwaterReuse.h"
#include "design/KeptPoint.h"
#include "files/ProjectHints.h"
#include "files/ProjectText.h"
#include "platform/Desktop.h"
#include "project/FaultsOnBar.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"
#include "stream/clsIOStream.h"

namespace orvik {
namespace {

bool IsOfStation(const Hint& hint) {
  return hint.id == HintId::StationContradiction || hint.id == HintId::StationNumberUnknown;
}

}  // namespace

bool ProjectFile::SaveDataInBuffer(clsIOStream& stream) const {
  return WriteProject(stream, binding_.Snapshot());
}

bool ProjectFile::ReadDataFromBuffer(clsIOStream& stream) {
  const ProjectReading reading = ReadProject(stream);
  hints_ = HintsOf(reading, stream.FileName());
  hadKeptPoint_ = reading.keptPoint.has_value();
  blockEndedEarly_ = reading.blockEndsEarly;
  if (reading.refusal.id != MessageId::None) {
    desktop_.ShowError(Sentence(reading.refusal));
    return false;
  }
  TakeOver(reading);
  stationRead_ = form_.cmbClimateStation->ListIndex();
  if (!reading.isWhole) return false;
  workflow_.ReCalc();
  form_.keptPoint = PointToKeep(binding_.Snapshot(), reading.OwnPoint());
  return true;
}

// In the order of the lines: choosing the station loads its curves; choosing the mode switches the
// form to it.
void ProjectFile::TakeOver(const ProjectReading& reading) {
  TakeOverTexts(reading, {FieldKind::Text, FieldKind::Wrapped, FieldKind::Date});
  if (reading.station) form_.cmbClimateStation->ListIndex(*reading.station);
  if (reading.mode) form_.cmbSolveFor->ListIndex(*reading.mode);
  TakeOverTexts(reading, {FieldKind::Number});
  if (reading.point) {
    // A point outside the curves is told by the recalculation that follows.
    ShowFaultsOnBar(form_.txtErrMsg, [&] {
      std::string ignored;
      chart_.SetHotspotUsing_RV(reading.point->R, reading.point->V, ignored);
    });
  } else if (reading.keptPoint && form_.Mode() == SolveFor::Interactive) {
    ShowFaultsOnBar(form_.txtErrMsg, [&] {
      chart_.ChangePoint([&](DesignPoint& point, const FramedCurves* curves) {
        PlaceKeptPoint(point, curves, *reading.keptPoint);
      });
    });
  }
  TakeOverTexts(reading, {FieldKind::Slot});
}

void ProjectFile::TakeOverTexts(const ProjectReading& reading,
                                std::initializer_list<FieldKind> kinds) {
  for (const FieldDesign& field : Fields()) {
    const auto& text = reading.Text(field.id);
    if (text && std::ranges::find(kinds, field.kind) != kinds.end()) {
      form_.Box(field.id).Text(*text);
    }
  }
}

std::vector<Hint> ProjectFile::Hints() const {
  std::vector<Hint> hints = hints_;
  if (form_.cmbClimateStation->ListIndex() != stationRead_) std::erase_if(hints, IsOfStation);
  return hints;
}

void ProjectFile::ClearData() {
  hints_.clear();
  const auto empty = [this](bool description) {
    for (const FieldDesign& field : Fields()) {
      if (field.IsDescription() == description) form_.Box(field.id).Text("");
    }
  };
  empty(true);
  chart_.Clear();
  form_.cmbClimateStation->ListIndex(-1);
  form_.cmbSolveFor->ListIndex(IndexOf(SolveFor::Interactive));
  empty(false);
  form_.keptPoint.reset();
  form_.txtErrMsg.Clear();
}

}  // namespace orvik
