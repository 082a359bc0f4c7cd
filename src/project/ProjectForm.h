// The widgets of the project's window, by their names. They are the only store of the project:
// every calculation reads its numbers from these texts and writes its results back as text.
#pragma once

#include <array>
#include <memory>

#include "controls/ctrlErrorMessageBar.h"
#include "controls/ctrlMyTextBox.h"
#include "platform/Desktop.h"
#include "platform/Toolkit.h"
#include "project/SolveForMode.h"

namespace orvik {

struct ProjectForm {
  ProjectForm(Toolkit& toolkit, Desktop& desktop);

  std::unique_ptr<Window> window;
  std::unique_ptr<Panel> picProject;  // the page of the descriptive fields
  std::unique_ptr<Panel> picData;     // the page of the numbers and the chart; one of the two shows

  // Description of the project.
  ctrlMyTextBox txtProjectName;
  ctrlMyTextBox txtDescription;
  ctrlMyTextBox txtProjectNumber;
  ctrlMyTextBox txtEngineer;
  ctrlMyTextBox txtSuervisingEngineer;  // spelled so on purpose: hosts know it by this name
  ctrlMyTextBox txtDate;

  // The basin and the site.
  ctrlMyTextBox txtBasinArea;                 // acres
  ctrlMyTextBox txtRunoffCoefficient;         // 0 < C <= 1
  ctrlMyTextBox txtEquivalentImperviousArea;  // EIA, acres; computed
  ctrlMyTextBox txtIrrigationArea;            // acres
  std::unique_ptr<ComboBox> cmbClimateStation;
  std::unique_ptr<ComboBox> cmbSolveFor;

  // The normalized quantities.
  ctrlMyTextBox txtR;  // reuse rate, inches per day on the EIA
  ctrlMyTextBox txtE;  // efficiency, percent
  ctrlMyTextBox txtV;  // storage volume, inches on the EIA

  ctrlErrorMessageBar txtErrMsg;

  // The site quantities of the chosen mode and their captions; slots 1...3.
  ctrlMyTextBox& txtSolveFor(int slot) { return solveForTexts_.at(Index(slot)); }
  Label& lblSolveFor(int slot) { return *solveForLabels_.at(Index(slot)); }

 private:
  static std::size_t Index(int slot) { return static_cast<std::size_t>(slot - 1); }

  std::array<ctrlMyTextBox, kSolveForSlots> solveForTexts_;
  std::array<std::unique_ptr<Label>, kSolveForSlots> solveForLabels_;
};

}  // namespace orvik
