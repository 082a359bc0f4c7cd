#include "project/SolveForWorkflow.h"

#include "base/NumberText.h"
#include "project/Conversions.h"
#include "project/FaultsOnBar.h"

namespace orvik {
namespace {

constexpr QuantityCheck kBasinArea{.empty = "The basin area has not been defined.",
                                   .notNumeric = "The basin area is not numeric.",
                                   .range = Range::AboveZero,
                                   .outOfRange = "The basin area must be greater than zero."};
constexpr QuantityCheck kRunoffCoefficient{
    .empty = "The runoff coefficient has not been defined.",
    .notNumeric = "The runoff coefficient is not numeric.",
    .range = Range::UpToOne,
    .outOfRange = "The runoff coefficient must be between 0 and 1."};
constexpr QuantityCheck kIrrigationArea{
    .empty = "The irrigation area has not been defined.",
    .notNumeric = "The irrigation area is not numeric.",
    .range = Range::AboveZero,
    .outOfRange = "The irrigation area must be greater than zero."};
constexpr QuantityCheck kStorageVolume{
    .empty = "The storage volume has not been defined.",
    .notNumeric = "The storage volume is not numeric.",
    .range = Range::FromZero,
    .outOfRange = "The storage volume must be greater than zero."};
constexpr QuantityCheck kReuseRate{.empty = "The reuse rate has not been defined.",
                                   .notNumeric = "The reuse rate is not numeric.",
                                   .range = Range::FromZero,
                                   .outOfRange = "The reuse rate must be greater than zero."};
constexpr QuantityCheck kEfficiency{.empty = "The efficiency has not been defined.",
                                    .notNumeric = "The efficiency is not numeric.",
                                    .range = Range::FromZero,
                                    .outOfRange = "The efficiency must be greater than zero."};

}  // namespace

void SolveForWorkflow::ReCalc() {
  ShowFaultsOnBar(form_.txtErrMsg, [this] { Recalculate(); });
  if (OnRecalculated) OnRecalculated();
}

void SolveForWorkflow::Recalculate() {
  const std::int16_t mode = form_.cmbSolveFor->ListIndex();
  const bool followsHotspot =
      mode == SolveFor::kInteractive && chart_.IsLoaded() && chart_.InteractiveMode() != kFalse16;
  // Before the fields are emptied: numbers typed there live on as the place of the hotspot, even if
  // the validation stops this run.
  if (followsHotspot) interactive_.PlaceHotspotByNumbers();
  // A typed mode's point is a result: it goes with the others, so that a run that stops leaves
  // none.
  if (IsTypedMode(mode)) chart_.HideHotSpot();
  EmptyResults(mode);
  const auto areas = CheckAreas();
  if (!areas) return;
  switch (mode) {
    case SolveFor::kInteractive:
      if (followsHotspot) interactive_.AnswerChange();
      break;
    case SolveFor::kEfficiency:
      SolveForEfficiency(*areas);
      break;
    case SolveFor::kStorageVolume:
      SolveForStorageVolume(*areas);
      break;
    case SolveFor::kReuseRate:
      SolveForReuseRate(*areas);
      break;
    default:
      break;
  }
}

void SolveForWorkflow::EmptyResults(std::int16_t mode) {
  form_.txtErrMsg.Clear();
  form_.txtEquivalentImperviousArea.Text("");
  if (mode == SolveFor::kInteractive) {  // there all slots are results
    form_.txtSolveFor(1).Text("");
    form_.txtSolveFor(2).Text("");
  }
  form_.txtSolveFor(3).Text("");
  form_.txtR.Text("");
  form_.txtE.Text("");
  form_.txtV.Text("");
}

// --- Validation ---

std::optional<SolveForWorkflow::Areas> SolveForWorkflow::CheckAreas() {
  const auto basin = CheckField(form_.txtBasinArea, kBasinArea);
  if (!basin) return std::nullopt;
  const auto runoff = CheckField(form_.txtRunoffCoefficient, kRunoffCoefficient);
  if (!runoff) return std::nullopt;
  const float EIA = *runoff * *basin;
  form_.txtEquivalentImperviousArea.Text(ConvertToString(EIA));
  const auto irrigation = CheckField(form_.txtIrrigationArea, kIrrigationArea);
  if (!irrigation) return std::nullopt;
  if (form_.cmbClimateStation->ListIndex() < 0) {
    form_.txtErrMsg.SetErrMsg("The climate station has not been selected.", 0);
    return std::nullopt;
  }
  return Areas{EIA, *irrigation};
}

std::optional<float> SolveForWorkflow::CheckSlot(int slot, const QuantityCheck& check) {
  return CheckField(form_.txtSolveFor(slot), check);
}

std::optional<float> SolveForWorkflow::CheckField(const ctrlMyTextBox& field,
                                                  const QuantityCheck& check) {
  std::string message;
  const auto value = CheckQuantity(field.Text(), check, message);
  if (!value) form_.txtErrMsg.SetErrMsg(message, 0);
  return value;
}

void SolveForWorkflow::ShowChartMessage() {
  form_.txtErrMsg.SetErrMsg(chart_.ErrMsg(), chart_.HelpTopicIndex());
}

// --- The typed modes. S: acre-feet; Q: inches per week; V, R: normalized ---

void SolveForWorkflow::SolveForEfficiency(const Areas& areas) {
  const auto S = CheckSlot(1, kStorageVolume);
  if (!S) return;
  form_.txtV.Text(ConvertToString(StorageToNormalized(*S, areas.EIA)));
  const auto Q = CheckSlot(2, kReuseRate);
  if (!Q) return;
  form_.txtR.Text(ConvertToString(ReuseToNormalized(*Q, areas.EIA, areas.irrigation)));
  std::string E;
  if (!chart_.SetHotspotUsing_RV(form_.txtR.Text(), form_.txtV.Text(), E)) {
    return ShowChartMessage();
  }
  form_.txtE.Text(E);
  form_.txtSolveFor(3).Text(E);
}

void SolveForWorkflow::SolveForStorageVolume(const Areas& areas) {
  const auto E = CheckSlot(1, kEfficiency);
  if (!E) return;
  form_.txtE.Text(ConvertToString(*E));
  const auto Q = CheckSlot(2, kReuseRate);
  if (!Q) return;
  form_.txtR.Text(ConvertToString(ReuseToNormalized(*Q, areas.EIA, areas.irrigation)));
  std::string V;
  if (!chart_.SetHotspotUsing_ER(form_.txtE.Text(), form_.txtR.Text(), V)) {
    return ShowChartMessage();
  }
  form_.txtV.Text(V);
  form_.txtSolveFor(3).Text(ConvertToString(StorageFromNormalized(ReadSingle(V), areas.EIA)));
}

void SolveForWorkflow::SolveForReuseRate(const Areas& areas) {
  const auto E = CheckSlot(1, kEfficiency);
  if (!E) return;
  form_.txtE.Text(ConvertToString(*E));
  const auto S = CheckSlot(2, kStorageVolume);
  if (!S) return;
  form_.txtV.Text(ConvertToString(StorageToNormalized(*S, areas.EIA)));
  std::string R;
  if (!chart_.SetHotspotUsing_EV(form_.txtE.Text(), form_.txtV.Text(), R)) {
    ShowChartMessage();
    if (chart_.InteractiveMode() != kFalse16) chart_.HideHotSpot();
    return;
  }
  form_.txtR.Text(R);
  form_.txtSolveFor(3).Text(
      ConvertToString(ReuseFromNormalized(ReadSingle(R), areas.EIA, areas.irrigation)));
}

// --- Before a recalculation ---

bool SolveForWorkflow::IsDataDefined() const {
  if (!chart_.IsLoaded()) return false;
  if (!IsDefinedNumber(form_.txtBasinArea.Text()) ||
      !IsDefinedNumber(form_.txtRunoffCoefficient.Text()) ||
      !IsDefinedNumber(form_.txtIrrigationArea.Text())) {
    return false;
  }
  const std::int16_t mode = form_.cmbSolveFor->ListIndex();
  if (IsTypedMode(mode)) {
    return IsDefinedNumber(form_.txtSolveFor(1).Text()) &&
           IsDefinedNumber(form_.txtSolveFor(2).Text());
  }
  if (mode != SolveFor::kInteractive) return false;
  return chart_.InteractiveMode() != kFalse16 || interactive_.GuessBestInteractiveSolution() >= 1;
}

void SolveForWorkflow::UpdateEquivalentImperviousArea() {
  const std::string area = form_.txtBasinArea.Text();
  const std::string runoff = form_.txtRunoffCoefficient.Text();
  if (!IsDefinedNumber(area) || !IsDefinedNumber(runoff)) return;
  ShowFaultsOnBar(form_.txtErrMsg, [&] {
    const float EIA = ReadSingle(runoff) * ReadSingle(area);
    form_.txtEquivalentImperviousArea.Text(ConvertToString(EIA));
  });
}

}  // namespace orvik
