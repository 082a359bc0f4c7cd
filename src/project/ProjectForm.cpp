#include "project/ProjectForm.h"

#include <utility>

namespace orvik {
namespace {

template <std::size_t... I>
std::array<ctrlMyTextBox, kFields> MakeBoxes(Toolkit& toolkit, std::index_sequence<I...>) {
  return {ctrlMyTextBox(toolkit, Fields()[I].control)...};
}

std::unique_ptr<ComboBox> MakeList(Toolkit& toolkit, ListField list) {
  return toolkit.MakeComboBox(DesignOf(list).control);
}

std::unique_ptr<Label> MakeSlotLabel(Toolkit& toolkit, int slot) {
  return toolkit.MakeLabel(DesignOf(SlotField(slot)).label);
}

}  // namespace

ProjectForm::ProjectForm(Toolkit& toolkit, Desktop& desktop)
    : window(toolkit.MakeWindow("Form1")),
      picProject(toolkit.MakePanel("picProject")),
      picData(toolkit.MakePanel("picData")),
      cmbClimateStation(MakeList(toolkit, ListField::ClimateStation)),
      cmbSolveFor(MakeList(toolkit, ListField::SolveForMode)),
      txtErrMsg(toolkit, desktop, "txtErrMsg"),
      boxes_(MakeBoxes(toolkit, std::make_index_sequence<kFields>())),
      slotLabels_{MakeSlotLabel(toolkit, 1), MakeSlotLabel(toolkit, 2), MakeSlotLabel(toolkit, 3)} {
  picProject->Visible(false);
  for (const FieldDesign& field : Fields()) {
    if (field.kind != FieldKind::Result) continue;
    Box(field.id).Locked(true);
    Box(field.id).BackColor(kButtonFace);
  }
}

}  // namespace orvik
