#include "project/ModeChange.h"

namespace orvik {
namespace {

void SetLocked(ctrlMyTextBox& field, bool locked) {
  field.Locked(locked);
  field.BackColor(locked ? kButtonFace : kWindowBackground);
}

}  // namespace

void ModeChange::Apply() {
  const std::int16_t mode = form_.cmbSolveFor->ListIndex();
  const SiteTexts texts = TextsOfOldMode();
  const bool leavesSolution = IsTypedMode(mode_) && IsTypedMode(mode);
  mode_ = mode;
  if (IsSolveForMode(mode)) FillSlots(mode, texts);
  SetLocks(mode);
  const bool isInteractive = mode == SolveFor::kInteractive;
  chart_.InteractiveMode(ToBoolean16(isInteractive));
  // The normalized numbers still stand in their fields: the user finds the point where they were.
  const bool placed = isInteractive && interactive_.PlaceHotspotByNumbers();
  if (workflow_.IsDataDefined()) {
    workflow_.ReCalc();
  } else if (placed) {
    interactive_.AnswerChange();
  } else {
    form_.txtErrMsg.Clear();
    if (leavesSolution) EmptySolution();
  }
}

// What another mode has solved is no solution of this one, which still lacks numbers.
void ModeChange::EmptySolution() {
  chart_.HideHotSpot();
  form_.txtR.Text("");
  form_.txtE.Text("");
  form_.txtV.Text("");
}

ModeChange::SiteTexts ModeChange::TextsOfOldMode() {
  SiteTexts texts;
  if (!IsSolveForMode(mode_)) return texts;
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    texts.at(static_cast<std::size_t>(QuantityInSlot(mode_, slot))) =
        form_.txtSolveFor(slot).Text();
  }
  return texts;
}

void ModeChange::FillSlots(std::int16_t mode, const SiteTexts& texts) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    const SiteQuantity quantity = QuantityInSlot(mode, slot);
    const bool isGiven = IsTypedMode(mode) && slot < kSolveForSlots;
    form_.lblSolveFor(slot).Caption(SiteQuantityCaption(quantity));
    form_.txtSolveFor(slot).Text(isGiven ? texts.at(static_cast<std::size_t>(quantity)) : "");
  }
}

void ModeChange::SetLocks(std::int16_t mode) {
  SetLocked(form_.txtSolveFor(1), !IsTypedMode(mode));
  SetLocked(form_.txtSolveFor(2), !IsTypedMode(mode));
  SetLocked(form_.txtSolveFor(3), true);
  const bool normalizedAreResults = mode != SolveFor::kInteractive;
  SetLocked(form_.txtR, normalizedAreResults);
  SetLocked(form_.txtE, normalizedAreResults);
  SetLocked(form_.txtV, normalizedAreResults);
}

}  // namespace orvik
