#include "design/OutcomeMessage.h"

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "engine/ClimateStations.h"
#include "engine/CurveLoading.h"
#include "engine/Outcome.h"

namespace orvik {

Message MessageOf(const Outcome& outcome, std::string_view efficiency) {
  switch (outcome.kind) {
    case OutcomeKind::Unasked:
      break;
    case OutcomeKind::Solved:
      return {MessageId::Success};
    case OutcomeKind::VolumeBelowAxis:
      return {MessageId::VolumeBelowAxis, ConvertToString(outcome.limit)};
    case OutcomeKind::VolumeAboveAxis:
      return {MessageId::VolumeAboveAxis, ConvertToString(outcome.limit)};
    case OutcomeKind::RateBelowAxis:
      return {MessageId::RateBelowAxis, ConvertToString(outcome.limit)};
    case OutcomeKind::RateAboveAxis:
      return {MessageId::RateAboveAxis, ConvertToString(outcome.limit)};
    // The curves' E are in single precision and are shown so.
    case OutcomeKind::EfficiencyBelowCurves:
      return {MessageId::EfficiencyBelowCurves, ConvertToString(ToSingle(outcome.limit))};
    case OutcomeKind::EfficiencyAboveCurves:
      return {MessageId::EfficiencyAboveCurves, ConvertToString(ToSingle(outcome.limit))};
    case OutcomeKind::PointOffCurves:
      return {MessageId::PointOffCurves};
    case OutcomeKind::NoCurve:
      return {MessageId::NoCurve, std::string(efficiency)};
    case OutcomeKind::RateOffCurve:
      return {MessageId::RateOffCurve};
    case OutcomeKind::VolumeBelowCurve:
      return {MessageId::VolumeBelowCurve};
    case OutcomeKind::VolumeAboveCurve:
      return {MessageId::VolumeAboveCurve};
  }
  return {};
}

Message MessageOf(LoadOutcome outcome, std::string_view folder, std::int16_t station) {
  if (outcome == LoadOutcome::FolderMissing) {
    return {MessageId::CurveFolderMissing, std::string(folder)};
  }
  if (outcome == LoadOutcome::FileMissing) {
    return {MessageId::CurveFileMissing, std::string(ClimateStationName(station))};
  }
  return {};
}

}  // namespace orvik
