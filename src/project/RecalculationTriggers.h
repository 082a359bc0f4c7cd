// When the project is recalculated: Enter in a field or leaving a changed one, another station,
// another mode.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "design/Hints.h"
#include "project/MissingInputMarks.h"
#include "project/ModeChange.h"
#include "project/OutOfDateMarks.h"

namespace orvik {

class Desktop;
class FormBinding;
enum class Field : std::uint8_t;
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

  // The fields hold another project, or what could be read of one: nothing there was typed, and
  // what was said of the one before is taken back.
  void TakeReplaced();

  // What leaving the fields would do for those that were changed since the last recalculation, and
  // Enter in R, E and V: what is printed or handed over then belongs together.
  void ProcessChanges();

  // Some result that the fields show is not that of the other fields.
  bool IsAnyOutOfDate() const { return outOfDate_.AreAny(); }

  std::function<void()> OnEdited;   // a field was typed in, something chosen, the point moved
  std::function<void()> OnSettled;  // a result was written, or taken away

 private:
  // A field whose change calls for a recalculation.
  struct Entry {
    ctrlMyTextBox& field;
    bool definesEIA;
    bool changed = false;  // since the last recalculation
  };

  // What was typed in R, E or V; the field itself may show the point's own number by now.
  struct TypedNumber {
    Field field;
    std::string text;
  };

  static std::vector<Entry> EntriesOf(ProjectForm& form);
  void WatchNormalized();
  void WatchDescription();
  void WatchLists();
  void Watch(Entry& entry);
  void AnswerTyping(Entry& entry);
  void AnswerEdit();
  void RaiseEdited();
  void AnswerChoice(void (RecalculationTriggers::*change)());
  void Process(Entry& entry);
  void PlacePointBy(Field typed);
  void PlacePoint();
  void NoteTyped(Field field);
  void SayNotTaken(const std::vector<TypedNumber>& typed);
  Hint HintOfNotTaken(const TypedNumber& number) const;
  bool IsTaken(const TypedNumber& number) const;
  void TakeBackNotTaken();
  void SayMissing();
  void AnswerRecalculated();
  void AnswerPointShown();
  void Settle();
  void ForgetChanges();
  void ForgetChangedEntries();
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
  OutOfDateMarks outOfDate_;
  MissingInputMarks missing_;
  bool isChoosing_ = false;         // a station or a mode, which has not settled yet
  std::vector<TypedNumber> typed_;  // for the point, and not processed; the last typed comes last
  bool saysNotTaken_ = false;       // of numbers for the point
  std::vector<Entry> entries_;      // never grows: the fields' events refer to them
};

}  // namespace orvik
