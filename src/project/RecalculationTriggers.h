// When the project is recalculated: Enter in a field or leaving a changed one, another station,
// another mode.
#pragma once

#include <array>

#include "chart/ctrlStormwaterReuse.h"
#include "project/InteractiveSynchronisation.h"
#include "project/ModeChange.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"

namespace orvik {

// Takes over the events of the form's fields and lists.
class RecalculationTriggers {
 public:
  RecalculationTriggers(ProjectForm& form, ctrlStormwaterReuse& chart, SolveForWorkflow& workflow,
                        InteractiveSynchronisation& interactive);
  RecalculationTriggers(const RecalculationTriggers&) = delete;
  RecalculationTriggers& operator=(const RecalculationTriggers&) = delete;
  ~RecalculationTriggers() = default;

  // What Enter does in the fields: recalculates where all data are there; otherwise takes the shown
  // solution away, which is no longer that of the fields.
  void txtBasinArea_Process_CR() { Process_CR(); }  // serves the runoff coefficient too
  void txtIrrigation_Process_CR() { Process_CR(); }
  void txtSolveFor_Process_CR() { Process_CR(); }

  // What stands in the fields was not typed there: leaving them calls for nothing.
  void ForgetChanges();

  // What leaving the fields would do for those that were changed since the last recalculation.
  void ProcessChanges();

 private:
  // A field whose change calls for a recalculation.
  struct Entry {
    ctrlMyTextBox& field;
    void (RecalculationTriggers::*process)();
    bool changed = false;  // since the last recalculation
  };

  void Watch(Entry& entry);
  void Process(Entry& entry);
  void Process_CR();
  void PlacePoint();
  void ChangeStation();
  void ChangeMode();
  void ResetSolution();
  void EmptyNormalized();

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  SolveForWorkflow& workflow_;
  InteractiveSynchronisation& interactive_;
  ModeChange modeChange_;
  std::array<Entry, 6> entries_;
};

}  // namespace orvik
