// When the project is recalculated: Enter in a field or leaving a changed one, another station,
// another mode.
#pragma once

#include <vector>

#include "project/ModeChange.h"

namespace orvik {

class Desktop;
class FormBinding;
class InteractiveSynchronisation;
class SolveForWorkflow;
class ctrlMyTextBox;
class ctrlStormwaterReuse;
struct ProjectForm;

// Takes over the events of the form's fields and lists.
class RecalculationTriggers {
 public:
  // All outlive this. `desktop` shows why a station's curves could not be loaded.
  RecalculationTriggers(ProjectForm& form, ctrlStormwaterReuse& chart, Desktop& desktop,
                        FormBinding& binding, SolveForWorkflow& workflow,
                        InteractiveSynchronisation& interactive);
  RecalculationTriggers(const RecalculationTriggers&) = delete;
  RecalculationTriggers& operator=(const RecalculationTriggers&) = delete;
  ~RecalculationTriggers() = default;

  // What Enter does in the fields of the basin, the irrigation area and the solve-for slots
  // (txtBasinArea_Process_CR, txtIrrigation_Process_CR and txtSolveFor_Process_CR in one):
  // recalculates where all data are there; otherwise takes the shown solution away, which is no
  // longer that of the fields.
  void Process_CR();

  // What stands in the fields was not typed there: leaving them calls for nothing.
  void ForgetChanges();

  // What leaving the fields would do for those that were changed since the last recalculation.
  void ProcessChanges();

 private:
  // A field whose change calls for a recalculation.
  struct Entry {
    ctrlMyTextBox& field;
    bool definesEIA;
    bool changed = false;  // since the last recalculation
  };

  static std::vector<Entry> EntriesOf(ProjectForm& form);
  void Watch(Entry& entry);
  void Process(Entry& entry);
  void PlacePoint();
  void ChangeStation();
  void LoadCurves();
  void ChangeMode();
  void ResetSolution();

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  Desktop& desktop_;
  FormBinding& binding_;
  SolveForWorkflow& workflow_;
  InteractiveSynchronisation& interactive_;
  ModeChange modeChange_;
  std::vector<Entry> entries_;  // never grows: the fields' events refer to them
};

}  // namespace orvik
