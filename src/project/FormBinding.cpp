#include "project/FormBinding.h"

#include "chart/ctrlStormwaterReuse.h"
#include "design/Calculate.h"
#include "design/KeptPoint.h"
#include "project/FlagScope.h"
#include "project/ProjectForm.h"

namespace orvik {

Project FormBinding::Snapshot() const {
  Project project;
  for (const FieldDesign& field : Fields()) project.Text(field.id) = form_.Box(field.id).Text();
  project.station = form_.cmbClimateStation->ListIndex();
  project.mode = form_.Mode();
  project.takesPointByHand = chart_.InteractiveMode();
  project.point = chart_.Point();
  project.keptPoint = PointToKeep(project, form_.keptPoint);
  return project;
}

void FormBinding::Show(const Result& result) {
  ShowTexts(result);
  chart_.Point(result.point);
  if (result.point.isShown) form_.keptPoint.reset();
  form_.txtErrMsg.Clear();
  for (const Message& message : result.messages) ShowOnBar(form_.txtErrMsg, message);
}

void FormBinding::ShowTexts(const Result& result) {
  const FlagScope showing(isShowing_);
  for (const FieldDesign& field : Fields()) {
    const auto& text = result.texts[static_cast<std::size_t>(field.id)];
    if (text) form_.Box(field.id).Text(*text);
  }
}

void FormBinding::Empty(std::initializer_list<Field> fields) {
  for (const Field field : fields) form_.Box(field).Text("");
}

void ShowOnBar(ctrlErrorMessageBar& bar, const Message& message) {
  const bool beepOn = bar.BeepOn();
  if (message.id == MessageId::MissingData) bar.BeepOn(false);
  bar.SetErrMsg(Sentence(message), HelpTopic(message.id));
  bar.BeepOn(beepOn);
}

}  // namespace orvik
