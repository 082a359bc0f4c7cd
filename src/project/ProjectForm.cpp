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

std::unique_ptr<Label> MakeMark(Toolkit& toolkit, std::string_view name) {
  auto mark = toolkit.MakeLabel(name);
  mark->Caption("*");
  mark->Visible(false);
  return mark;
}

}  // namespace

ProjectForm::ProjectForm(Toolkit& toolkit, Desktop& desktop)
    : window(toolkit.MakeWindow("Form1")),
      picProject(toolkit.MakePanel("picProject")),
      picData(toolkit.MakePanel("picData")),
      cmbClimateStation(MakeList(toolkit, ListField::ClimateStation)),
      cmbSolveFor(MakeList(toolkit, ListField::SolveForMode)),
      txtErrMsg(toolkit, desktop, "txtErrMsg"),
      hints(toolkit),
      boxes_(MakeBoxes(toolkit, std::make_index_sequence<kFields>())),
      slotLabels_{MakeSlotLabel(toolkit, 1), MakeSlotLabel(toolkit, 2), MakeSlotLabel(toolkit, 3)} {
  picProject->Visible(false);
  for (const FieldDesign& field : Fields()) {
    if (field.kind != FieldKind::Result) continue;
    Box(field.id).Locked(true);
    Box(field.id).BackColor(kButtonFace);
  }
  for (const FieldDesign& field : Fields()) {
    if (!field.CanBeNeeded()) continue;
    fieldMarks_[static_cast<std::size_t>(field.id)] = MakeMark(toolkit, field.markLabel);
  }
  for (const ListDesign& list : ListFields()) {
    listMarks_[static_cast<std::size_t>(list.id)] = MakeMark(toolkit, list.markLabel);
  }
}

}  // namespace orvik
