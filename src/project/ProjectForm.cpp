#include "project/ProjectForm.h"

namespace orvik {

ProjectForm::ProjectForm(Toolkit& toolkit, Desktop& desktop)
    : window(toolkit.MakeWindow("Form1")),
      picProject(toolkit.MakePanel("picProject")),
      picData(toolkit.MakePanel("picData")),
      txtProjectName(toolkit, "txtProjectName"),
      txtDescription(toolkit, "txtDescription"),
      txtProjectNumber(toolkit, "txtProjectNumber"),
      txtEngineer(toolkit, "txtEngineer"),
      txtSuervisingEngineer(toolkit, "txtSuervisingEngineer"),
      txtDate(toolkit, "txtDate"),
      txtBasinArea(toolkit, "txtBasinArea"),
      txtRunoffCoefficient(toolkit, "txtRunoffCoefficient"),
      txtEquivalentImperviousArea(toolkit, "txtEquivalentImperviousArea"),
      txtIrrigationArea(toolkit, "txtIrrigationArea"),
      cmbClimateStation(toolkit.MakeComboBox("cmbClimateStation")),
      cmbSolveFor(toolkit.MakeComboBox("cmbSolveFor")),
      txtR(toolkit, "txtR"),
      txtE(toolkit, "txtE"),
      txtV(toolkit, "txtV"),
      txtErrMsg(toolkit, desktop, "txtErrMsg"),
      solveForTexts_{ctrlMyTextBox(toolkit, "txtSolveFor(1)"),
                     ctrlMyTextBox(toolkit, "txtSolveFor(2)"),
                     ctrlMyTextBox(toolkit, "txtSolveFor(3)")},
      solveForLabels_{toolkit.MakeLabel("lblSolveFor(1)"), toolkit.MakeLabel("lblSolveFor(2)"),
                      toolkit.MakeLabel("lblSolveFor(3)")} {
  picProject->Visible(false);
  txtEquivalentImperviousArea.Locked(true);
  txtEquivalentImperviousArea.BackColor(kButtonFace);
}

}  // namespace orvik
