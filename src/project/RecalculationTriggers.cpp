#include "project/RecalculationTriggers.h"

#include "base/NumberText.h"
#include "project/FaultsOnBar.h"

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
                                             SolveForWorkflow& workflow,
                                             InteractiveSynchronisation& interactive)
    : form_(form),
      chart_(chart),
      workflow_(workflow),
      interactive_(interactive),
      modeChange_(form, chart, workflow, interactive),
      entries_{{{form.txtBasinArea, &RecalculationTriggers::txtBasinArea_Process_CR},
                {form.txtRunoffCoefficient, &RecalculationTriggers::txtBasinArea_Process_CR},
                {form.txtIrrigationArea, &RecalculationTriggers::txtIrrigation_Process_CR},
                {form.txtSolveFor(1), &RecalculationTriggers::txtSolveFor_Process_CR},
                {form.txtSolveFor(2), &RecalculationTriggers::txtSolveFor_Process_CR},
                {form.txtSolveFor(3), &RecalculationTriggers::txtSolveFor_Process_CR}}} {
  for (Entry& entry : entries_) Watch(entry);
  // The normalized numbers can be typed in the interactive mode: Enter places the hotspot by them.
  for (ctrlMyTextBox* field : {&form_.txtR, &form_.txtE, &form_.txtV}) {
    OnEnter(*field, [this, field] {
      if (field->Locked()) return;
      ShowFaultsOnBar(form_.txtErrMsg, [this] { PlacePoint(); });
    });
  }
  form_.cmbClimateStation->OnClick = [this] {
    ShowFaultsOnBar(form_.txtErrMsg, [this] { ChangeStation(); });
  };
  form_.cmbSolveFor->OnClick = [this] {
    ShowFaultsOnBar(form_.txtErrMsg, [this] { ChangeMode(); });
  };
  workflow_.OnRecalculated = [this] { ForgetChanges(); };
}

void RecalculationTriggers::Watch(Entry& entry) {
  const bool definesEIA =
      &entry.field == &form_.txtBasinArea || &entry.field == &form_.txtRunoffCoefficient;
  entry.field.OnChange = [this, &entry, definesEIA] {
    entry.changed = !entry.field.Locked();  // a locked field shows results; nobody typed there
    if (definesEIA) workflow_.UpdateEquivalentImperviousArea();
  };
  OnEnter(entry.field, [this, &entry] { Process(entry); });
  entry.field.OnLeave = [this, &entry] {
    if (entry.changed) Process(entry);
  };
}

void RecalculationTriggers::ProcessChanges() {
  for (Entry& entry : entries_) {
    if (entry.changed) Process(entry);
  }
}

// The mark goes first: a message on the way may take the focus out of the field, which must not
// process it again.
void RecalculationTriggers::Process(Entry& entry) {
  entry.changed = false;
  (this->*entry.process)();
}

void RecalculationTriggers::Process_CR() {
  if (workflow_.IsDataDefined()) {
    workflow_.ReCalc();
  } else {
    ResetSolution();
  }
}

// The numbers place the point also where the site is not known yet; then only they show it.
void RecalculationTriggers::PlacePoint() {
  if (!workflow_.IsDataDefined() && interactive_.PlaceHotspotByNumbers()) {
    interactive_.AnswerChange();
  } else {
    Process_CR();
  }
}

// In the interactive mode the hotspot is the user's own point, not a solution: it stays, and only
// the site values go.
void RecalculationTriggers::ResetSolution() {
  form_.txtErrMsg.Clear();
  form_.txtSolveFor(3).Text("");
  if (form_.cmbSolveFor->ListIndex() == SolveFor::kInteractive) {
    form_.txtSolveFor(1).Text("");
    form_.txtSolveFor(2).Text("");
  } else {
    chart_.HideHotSpot();
    EmptyNormalized();
  }
  ForgetChanges();
}

// In the interactive mode the design point keeps its R and V on the curves of the other station,
// and gets its efficiency from them.
void RecalculationTriggers::ChangeStation() {
  const bool keepsPoint = form_.cmbSolveFor->ListIndex() == SolveFor::kInteractive &&
                          chart_.HotSpotVisibile() != kFalse16;
  const bool showsNumbers = keepsPoint && interactive_.HotspotShowsNumbers();
  const double R = chart_.HotspotR();
  const double V = chart_.HotspotV();
  chart_.SetCurveData(static_cast<std::int16_t>(form_.cmbClimateStation->ListIndex() + 1));
  if (!chart_.IsLoaded()) {
    chart_.HideHotSpot();
  } else if (keepsPoint) {
    std::string E;
    chart_.SetHotspotUsing_RV(ToShortestText(R), ToShortestText(V), E);
  }
  if (showsNumbers && !workflow_.IsDataDefined()) return interactive_.AnswerChange();
  if (showsNumbers) EmptyNormalized();  // the recalculation fills them from the hotspot
  Process_CR();
}

void RecalculationTriggers::EmptyNormalized() {
  form_.txtR.Text("");
  form_.txtE.Text("");
  form_.txtV.Text("");
}

void RecalculationTriggers::ChangeMode() {
  modeChange_.Apply();
  ForgetChanges();
}

void RecalculationTriggers::ForgetChanges() {
  for (Entry& entry : entries_) entry.changed = false;
}

}  // namespace orvik
