// A change of the solve-for mode: entered values are carried over by quantity, captions, colours
// and locked states follow the mode.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "chart/ctrlStormwaterReuse.h"
#include "project/InteractiveSynchronisation.h"
#include "project/ProjectForm.h"
#include "project/SolveForWorkflow.h"

namespace orvik {

class ModeChange {
 public:
  ModeChange(ProjectForm& form, ctrlStormwaterReuse& chart, SolveForWorkflow& workflow,
             InteractiveSynchronisation& interactive)
      : form_(form), chart_(chart), workflow_(workflow), interactive_(interactive) {}

  // cmbSolveFor shows another mode than before. Recalculates where all data are there. Throws
  // NumericError.
  void Apply();

 private:
  using SiteTexts = std::array<std::string, kSiteQuantities>;  // by SiteQuantity

  SiteTexts TextsOfOldMode();
  void FillSlots(std::int16_t mode, const SiteTexts& texts);
  void SetLocks(std::int16_t mode);
  void EmptySolution();

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  SolveForWorkflow& workflow_;
  InteractiveSynchronisation& interactive_;
  std::int16_t mode_ = -1;  // the mode that the slots are filled for; -1 none
};

}  // namespace orvik
