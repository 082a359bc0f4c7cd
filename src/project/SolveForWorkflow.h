// The recalculation of a project: validation in its fixed order, then the chart's answer in the
// chosen solve-for mode.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "chart/ctrlStormwaterReuse.h"
#include "project/InteractiveSynchronisation.h"
#include "project/NumberInput.h"
#include "project/ProjectForm.h"

namespace orvik {

class SolveForWorkflow {
 public:
  SolveForWorkflow(ProjectForm& form, ctrlStormwaterReuse& chart,
                   InteractiveSynchronisation& interactive)
      : form_(form), chart_(chart), interactive_(interactive) {}

  // Recalculates everything. The first fault is shown on the error bar and ends the run; fields
  // filled before it keep their new values. Throws nothing.
  void ReCalc();

  std::function<void()> OnRecalculated;  // after every ReCalc, whatever came of it

  // True when a recalculation has all that it needs. Asks quietly, shows nothing.
  bool IsDataDefined() const;

  // Writes the EIA where both the basin area and the runoff coefficient are numbers; otherwise
  // leaves it as it is. No range check: the user may be in the middle of typing.
  void UpdateEquivalentImperviousArea();

 private:
  // The areas that the conversions need, acres.
  struct Areas {
    float EIA;
    float irrigation;
  };

  void Recalculate();
  void EmptyResults(std::int16_t mode);
  std::optional<Areas> CheckAreas();
  void SolveForEfficiency(const Areas& areas);
  void SolveForStorageVolume(const Areas& areas);
  void SolveForReuseRate(const Areas& areas);

  // The site quantity in a slot of the mode, or nothing and a message on the error bar.
  std::optional<float> CheckSlot(int slot, const QuantityCheck& check);
  std::optional<float> CheckField(const ctrlMyTextBox& field, const QuantityCheck& check);
  void ShowChartMessage();

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  InteractiveSynchronisation& interactive_;
};

}  // namespace orvik
