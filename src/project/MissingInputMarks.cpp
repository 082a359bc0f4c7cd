#include "project/MissingInputMarks.h"

#include "chart/ctrlStormwaterReuse.h"
#include "design/Project.h"
#include "project/FormBinding.h"
#include "project/ProjectForm.h"

namespace orvik {

void MissingInputMarks::Say() {
  Show(FindMissingInputs(binding_.Snapshot(), chart_.IsLoaded()));
}

void MissingInputMarks::Refresh() {
  if (!said_.IsEmpty()) Say();
}

void MissingInputMarks::TakeBack() {
  Show({});
}

void MissingInputMarks::Show(const MissingInputs& missing) {
  if (missing != said_) Mark(said_, false);
  Mark(missing, true);  // again, since a change of the mode gives the fields colours of its own
  said_ = missing;
  form_.hints.Show(HintSource::Input, HintsOf(missing, binding_.Snapshot()));
}

void MissingInputMarks::Mark(const MissingInputs& missing, bool isMarked) {
  for (const ListField list : missing.lists) form_.Mark(list).Visible(isMarked);
  for (const Field field : missing.fields) Mark(field, isMarked, "still needed");
  for (const Field field : missing.notNumbers) Mark(field, isMarked, "not a number");
}

void MissingInputMarks::Mark(Field field, bool isMarked, std::string_view description) {
  ctrlMyTextBox& box = form_.Box(field);
  const Colour usual = box.Locked() ? kButtonFace : kWindowBackground;
  box.BackColor(isMarked ? kInfoBackground : usual);
  box.Description(isMarked ? description : std::string_view());
  form_.Mark(field).Visible(isMarked);
}

}  // namespace orvik
