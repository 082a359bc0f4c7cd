// The widgets of the project's window, by their names. They are the only store of the project: a
// snapshot of their texts is taken, calculated, and the result shown in them.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "controls/ctrlErrorMessageBar.h"
#include "controls/ctrlMyTextBox.h"
#include "design/Fields.h"
#include "design/Project.h"
#include "design/SolveFor.h"
#include "platform/Toolkit.h"
#include "project/HintLine.h"

namespace orvik {

class Desktop;

struct ProjectForm {
  ProjectForm(Toolkit& toolkit, Desktop& desktop);

  std::unique_ptr<Window> window;
  std::unique_ptr<Panel> picProject;  // the page of the descriptive fields
  std::unique_ptr<Panel> picData;     // the page of the numbers and the chart; one of the two shows

  std::unique_ptr<ComboBox> cmbClimateStation;
  std::unique_ptr<ComboBox> cmbSolveFor;
  ctrlErrorMessageBar txtErrMsg;
  HintLine hints;

  ctrlMyTextBox& Box(Field field) { return boxes_[static_cast<std::size_t>(field)]; }
  const ctrlMyTextBox& Box(Field field) const { return boxes_[static_cast<std::size_t>(field)]; }

  // The site quantities of the chosen mode and their captions; slots 1...3.
  ctrlMyTextBox& txtSolveFor(int slot) { return Box(SlotField(slot)); }
  Label& lblSolveFor(int slot) { return *slotLabels_.at(static_cast<std::size_t>(slot - 1)); }

  // A point that no widget shows; see design/KeptPoint.
  std::optional<StoredPoint> keptPoint;

  // The marks at the left of what is still needed; only of fields that can be, and of lists.
  Label& Mark(Field field) { return *fieldMarks_[static_cast<std::size_t>(field)]; }
  Label& Mark(ListField list) { return *listMarks_[static_cast<std::size_t>(list)]; }

  // The mode that cmbSolveFor shows.
  SolveFor Mode() const { return SolveForOfIndex(cmbSolveFor->ListIndex()); }

 private:
  std::array<ctrlMyTextBox, kFields> boxes_;
  std::array<std::unique_ptr<Label>, kSolveForSlots> slotLabels_;
  std::array<std::unique_ptr<Label>, kFields> fieldMarks_;
  std::array<std::unique_ptr<Label>, kListFields> listMarks_;
};

}  // namespace orvik
