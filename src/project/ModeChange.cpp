#include "project/ModeChange.h"

#include "chart/ctrlStormwaterReuse.h"
#include "design/Calculate.h"
#include "project/FormBinding.h"
#include "project/InteractiveSynchronisation.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"

namespace orvik {
namespace {

void SetLocked(ctrlMyTextBox& field, bool locked) {
  field.Locked(locked);
  field.BackColor(locked ? kButtonFace : kWindowBackground);
}

}  // namespace

void ModeChange::Apply() {
  const SolveFor mode = form_.Mode();
  const SiteTexts texts = TextsOfOldMode();
  const bool leavesSolution = IsTypedMode(mode_) && IsTypedMode(mode);
  mode_ = mode;
  if (mode != SolveFor::None) FillSlots(mode, texts);
  SetLocks(mode);
  const bool isInteractive = mode == SolveFor::Interactive;
  chart_.InteractiveMode(isInteractive);
  // The normalized numbers still stand in their fields: the user finds the point where they were.
  const bool placed = isInteractive && interactive_.PlaceHotspotByNumbers();
  if (workflow_.IsDataDefined()) {
    workflow_.ReCalc();
  } else if (placed) {
    interactive_.AnswerChange();
  } else {
    form_.txtErrMsg.Clear();
    // What another mode has solved is no solution of this one, which still lacks numbers.
    if (leavesSolution) {
      chart_.HideHotSpot();
      binding_.Empty({Field::R, Field::E, Field::V});
    }
  }
}

ModeChange::SiteTexts ModeChange::TextsOfOldMode() {
  SiteTexts texts;
  if (mode_ == SolveFor::None) return texts;
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    texts.at(static_cast<std::size_t>(QuantityInSlot(mode_, slot))) =
        form_.txtSolveFor(slot).Text();
  }
  return texts;
}

void ModeChange::FillSlots(SolveFor mode, const SiteTexts& texts) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    const SiteQuantity quantity = QuantityInSlot(mode, slot);
    const bool isGiven = IsTypedMode(mode) && slot < kSolveForSlots;
    form_.lblSolveFor(slot).Caption(SiteQuantityCaption(quantity));
    form_.txtSolveFor(slot).Text(isGiven ? texts.at(static_cast<std::size_t>(quantity)) : "");
  }
}

void ModeChange::SetLocks(SolveFor mode) {
  SetLocked(form_.txtSolveFor(1), !IsTypedMode(mode));
  SetLocked(form_.txtSolveFor(2), !IsTypedMode(mode));
  SetLocked(form_.txtSolveFor(3), true);
  const bool normalizedAreResults = mode != SolveFor::Interactive;
  for (const FieldDesign& field : Fields()) {
    if (field.kind == FieldKind::Normalized) SetLocked(form_.Box(field.id), normalizedAreResults);
  }
}

}  // namespace orvik
