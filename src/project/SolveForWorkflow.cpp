#include "project/SolveForWorkflow.h"

#include "chart/ctrlStormwaterReuse.h"
#include "design/Calculate.h"
#include "project/FaultsOnBar.h"
#include "project/ProjectForm.h"

namespace orvik {

void SolveForWorkflow::ReCalc() {
  binding_.Show(Calculate(binding_.Snapshot(), chart_.InFrame()));
  if (OnRecalculated) OnRecalculated();
}

bool SolveForWorkflow::IsDataDefined() const {
  return orvik::IsDataDefined(binding_.Snapshot(), chart_.IsLoaded());
}

bool SolveForWorkflow::UpdateEquivalentImperviousArea() {
  bool isWritten = false;
  ShowFaultsOnBar(form_.txtErrMsg, [&] {
    const auto EIA = EquivalentImperviousArea(binding_.Snapshot());
    if (EIA) form_.Box(Field::EquivalentImperviousArea).Text(*EIA);
    isWritten = EIA.has_value();
  });
  return isWritten;
}

}  // namespace orvik
