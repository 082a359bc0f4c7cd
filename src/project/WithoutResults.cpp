#include "project/WithoutResults.h"

namespace orvik {

std::string WhyWithoutResults(ProjectForm& form, const ctrlStormwaterReuse& chart) {
  if (form.txtErrMsg.IsSet() != kFalse16) return form.txtErrMsg.Text();
  const std::int16_t mode = form.cmbSolveFor->ListIndex();
  if (!IsSolveForMode(mode)) return "No solve-for mode is chosen.";
  if (mode == SolveFor::kInteractive && chart.HotSpotVisibile() == kFalse16) {
    return "No point is placed on the chart.";
  }
  return {};
}

}  // namespace orvik
