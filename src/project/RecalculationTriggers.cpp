#include "project/RecalculationTriggers.h"

#include <cmath>
#include <utility>

#include "base/NumberText.h"
#include "base/Text.h"
#include "chart/ctrlStormwaterReuse.h"
#include "design/Calculate.h"
#include "design/NumberInput.h"
#include "design/OutcomeMessage.h"
#include "engine/CurveLoading.h"
#include "platform/Desktop.h"
#include "project/FaultsOnBar.h"
#include "project/FlagScope.h"
#include "project/InteractiveSynchronisation.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"

namespace orvik {
namespace {

constexpr std::int16_t kEnter = 13;

// Runs `work` when Enter is pressed, and takes the key: a field of one line has no other use for it
// than a beep.
template <typename Work>
void OnEnter(ctrlMyTextBox& field, Work work) {
  field.OnKeyPress = [work](std::int16_t& KeyAscii) {
    if (KeyAscii != kEnter) return;
    KeyAscii = 0;
    work();
  };
}

}  // namespace

RecalculationTriggers::RecalculationTriggers(ProjectForm& form, ctrlStormwaterReuse& chart,
                                             Desktop& desktop, FormBinding& binding,
                                             SolveForWorkflow& workflow,
                                             InteractiveSynchronisation& interactive)
    : form_(form),
      chart_(chart),
      desktop_(desktop),
      binding_(binding),
      workflow_(workflow),
      interactive_(interactive),
      modeChange_(form, chart, binding, workflow, interactive),
      outOfDate_(form, binding),
      missing_(form, chart, binding),
      entries_(EntriesOf(form)) {
  for (Entry& entry : entries_) Watch(entry);
  WatchNormalized();
  WatchDescription();
  WatchLists();
  workflow_.OnRecalculated = [this] { AnswerRecalculated(); };
  interactive_.OnPointShown = [this] { AnswerPointShown(); };
}

// --- What is watched ---

std::vector<RecalculationTriggers::Entry> RecalculationTriggers::EntriesOf(ProjectForm& form) {
  std::vector<Entry> entries;
  for (const FieldDesign& field : Fields()) {
    if (field.kind != FieldKind::Number && field.kind != FieldKind::Slot) continue;
    const bool definesEIA = field.id == Field::BasinArea || field.id == Field::RunoffCoefficient;
    entries.push_back({form.Box(field.id), definesEIA});
  }
  return entries;
}

void RecalculationTriggers::Watch(Entry& entry) {
  entry.field.OnChange = [this, &entry] { AnswerTyping(entry); };
  OnEnter(entry.field, [this, &entry] {
    Process(entry);
    SayMissing();
  });
  entry.field.OnLeave = [this, &entry] {
    if (entry.changed) Process(entry);
  };
}

// The normalized numbers can be typed in the interactive mode: Enter places the hotspot by them.
void RecalculationTriggers::WatchNormalized() {
  for (const FieldDesign& design : Fields()) {
    if (design.kind != FieldKind::Normalized) continue;
    ctrlMyTextBox& field = form_.Box(design.id);
    field.OnChange = [this, &field, id = design.id] {
      if (!binding_.IsShowing() && !field.Locked()) NoteTyped(id);
      AnswerEdit();
    };
    OnEnter(field, [this, &field, id = design.id] {
      if (field.Locked()) return;
      ShowFaultsOnBar(form_.txtErrMsg, [this, id] { PlacePointBy(id); });
    });
  }
}

void RecalculationTriggers::WatchDescription() {
  for (const FieldDesign& field : Fields()) {
    if (field.IsDescription()) form_.Box(field.id).OnChange = [this] { AnswerEdit(); };
  }
}

void RecalculationTriggers::WatchLists() {
  form_.cmbClimateStation->OnClick = [this] {
    AnswerChoice(&RecalculationTriggers::ChangeStation);
  };
  form_.cmbSolveFor->OnClick = [this] { AnswerChoice(&RecalculationTriggers::ChangeMode); };
}

// A choice writes many fields; only what they show at its end makes sense.
void RecalculationTriggers::AnswerChoice(void (RecalculationTriggers::*change)()) {
  TakeBackNotTaken();
  {
    const FlagScope changing(isChoosing_);
    ShowFaultsOnBar(form_.txtErrMsg, [&] { (this->*change)(); });
  }
  RaiseEdited();
}

void RecalculationTriggers::AnswerTyping(Entry& entry) {
  entry.changed = !entry.field.Locked();  // a locked field shows results; nobody typed there
  if (entry.definesEIA && workflow_.UpdateEquivalentImperviousArea()) outOfDate_.TakeEIA();
  AnswerEdit();
}

void RecalculationTriggers::AnswerEdit() {
  if (binding_.IsShowing() || isChoosing_) return;
  TakeBackNotTaken();
  RaiseEdited();
}

void RecalculationTriggers::RaiseEdited() {
  outOfDate_.Refresh();
  missing_.Refresh();
  if (OnEdited) OnEdited();
}

void RecalculationTriggers::AnswerRecalculated() {
  const std::vector<TypedNumber> typed = std::exchange(typed_, {});
  ForgetChanges();
  outOfDate_.TakeCalculated();
  Settle();
  SayNotTaken(typed);
}

void RecalculationTriggers::AnswerPointShown() {
  typed_.clear();
  outOfDate_.TakePoint();
  Settle();
  if (OnEdited && !isChoosing_) OnEdited();
}

void RecalculationTriggers::Settle() {
  TakeBackNotTaken();
  missing_.Refresh();
  if (OnSettled) OnSettled();
}

void RecalculationTriggers::TakeReplaced() {
  ForgetChanges();
  outOfDate_.Refresh();
  missing_.TakeBack();
  TakeBackNotTaken();
}

// --- What is done ---

void RecalculationTriggers::ProcessChanges() {
  for (Entry& entry : entries_) {
    if (entry.changed) Process(entry);
  }
  if (!typed_.empty()) ShowFaultsOnBar(form_.txtErrMsg, [this] { PlacePoint(); });
}

// The mark goes first: a message on the way may take the focus out of the field, which must not
// process it again.
void RecalculationTriggers::Process(Entry& entry) {
  entry.changed = false;
  Process_CR();
}

void RecalculationTriggers::Process_CR() {
  if (workflow_.IsDataDefined()) {
    workflow_.ReCalc();
  } else {
    ResetSolution();
  }
}

void RecalculationTriggers::PlacePointBy(Field typed) {
  NoteTyped(typed);
  PlacePoint();
  SayMissing();
}

void RecalculationTriggers::NoteTyped(Field field) {
  std::erase_if(typed_, [field](const TypedNumber& number) { return number.field == field; });
  typed_.push_back({field, form_.Box(field).Text()});
}

// A number that places no point is overwritten by the point's own, or stays without one; the user
// reads so on the hint line. What the curves do not reach, the message bar says.
void RecalculationTriggers::SayNotTaken(const std::vector<TypedNumber>& typed) {
  const std::string message = form_.txtErrMsg.Text();
  const bool isRefused = form_.txtErrMsg.IsSet() && message != Sentence({MessageId::MissingData});
  const bool areResults = form_.Mode() != SolveFor::Interactive;
  if (isRefused || areResults || !chart_.IsLoaded()) return;
  std::vector<Hint> hints;
  for (const TypedNumber& number : typed) {
    if (!Trim(number.text).empty() && !IsTaken(number)) hints.push_back(HintOfNotTaken(number));
  }
  if (hints.empty()) return;
  missing_.TakeBack();
  form_.hints.Show(HintSource::Input, std::move(hints));
  saysNotTaken_ = true;
}

Hint RecalculationTriggers::HintOfNotTaken(const TypedNumber& number) const {
  const std::string now = form_.Box(number.field).Text();
  const std::string caption = PlainCaption(number.field);
  const std::string given(Trim(number.text));
  const bool isOverwritten = !now.empty() && now != number.text;
  if (isOverwritten) return {HintId::NumberNotTaken, {caption, given, now}};
  return {HintId::NumberNotPlaced, {caption, given}};
}

// The point shows the number, which it has through single precision.
bool RecalculationTriggers::IsTaken(const TypedNumber& number) const {
  constexpr double kSinglePrecision = 1e-6;
  if (!interactive_.HotspotShowsNumbers() || !IsDefinedNumber(number.text)) return false;
  const double given = ParseNumber(number.text);
  const double now = ParseNumber(form_.Box(number.field).Text());
  return std::fabs(now - given) <= kSinglePrecision * std::fabs(given);
}

// What a result still needs; a number that was not taken comes first.
void RecalculationTriggers::SayMissing() {
  if (!saysNotTaken_) missing_.Say();
}

void RecalculationTriggers::TakeBackNotTaken() {
  if (!saysNotTaken_) return;
  saysNotTaken_ = false;
  form_.hints.Clear(HintSource::Input);
}

// The numbers place the point also where the site is not known yet; then only they show it.
void RecalculationTriggers::PlacePoint() {
  const std::vector<TypedNumber> typed = typed_;
  if (!workflow_.IsDataDefined() && interactive_.PlaceHotspotByNumbers()) {
    interactive_.AnswerChange();
  } else {
    Process_CR();
  }
  SayNotTaken(typed);
}

// In the interactive mode the hotspot is the user's own point, not a solution: it stays, and only
// the site values go. What was typed for it still stands in its fields, and is placed or told of
// later.
void RecalculationTriggers::ResetSolution() {
  form_.txtErrMsg.Clear();
  binding_.Empty({Field::SolveFor3});
  if (form_.Mode() == SolveFor::Interactive) {
    binding_.Empty({Field::SolveFor1, Field::SolveFor2});
  } else {
    chart_.HideHotSpot();
    binding_.Empty({Field::R, Field::E, Field::V});
  }
  ForgetChangedEntries();
  Settle();
}

// In the interactive mode the design point keeps its R and V on the curves of the other station,
// and gets its efficiency from them.
void RecalculationTriggers::ChangeStation() {
  form_.keptPoint.reset();
  const bool keepsPoint = form_.Mode() == SolveFor::Interactive && chart_.Point().isShown;
  const bool showsNumbers = keepsPoint && interactive_.HotspotShowsNumbers();
  const double R = chart_.Point().R;
  const double V = chart_.Point().V;
  LoadCurves();
  if (!chart_.IsLoaded()) {
    chart_.HideHotSpot();
  } else if (keepsPoint) {
    std::string E;
    chart_.SetHotspotUsing_RV(ToShortestText(R), ToShortestText(V), E);
  }
  if (showsNumbers && !workflow_.IsDataDefined()) return interactive_.AnswerChange();
  // The recalculation fills them from the hotspot.
  if (showsNumbers) binding_.Empty({Field::R, Field::E, Field::V});
  Process_CR();
}

void RecalculationTriggers::LoadCurves() {
  const auto station = static_cast<std::int16_t>(form_.cmbClimateStation->ListIndex() + 1);
  const LoadOutcome outcome = chart_.SetCurveData(station);
  const Message message = MessageOf(outcome, chart_.CurveFolder(), station);
  if (message.id != MessageId::None) desktop_.ShowError(Sentence(message));
}

void RecalculationTriggers::ChangeMode() {
  form_.keptPoint.reset();
  modeChange_.Apply();
  ForgetChanges();
}

// What stands in the fields was not typed there: leaving them calls for nothing.
void RecalculationTriggers::ForgetChanges() {
  typed_.clear();
  ForgetChangedEntries();
}

void RecalculationTriggers::ForgetChangedEntries() {
  for (Entry& entry : entries_) entry.changed = false;
}

}  // namespace orvik
