// A change of the solve-for mode: entered values are carried over by quantity, captions, colours
// and locked states follow the mode.
#pragma once

#include <array>
#include <string>

#include "design/SolveFor.h"

namespace orvik {

class FormBinding;
class InteractiveSynchronisation;
class SolveForWorkflow;
class ctrlStormwaterReuse;
struct ProjectForm;

class ModeChange {
 public:
  // All outlive this.
  ModeChange(ProjectForm& form, ctrlStormwaterReuse& chart, FormBinding& binding,
             SolveForWorkflow& workflow, InteractiveSynchronisation& interactive)
      : form_(form),
        chart_(chart),
        binding_(binding),
        workflow_(workflow),
        interactive_(interactive) {}

  // cmbSolveFor shows another mode than before. Recalculates where all data are there. Throws
  // NumericError.
  void Apply();

 private:
  using SiteTexts = std::array<std::string, kSiteQuantities>;  // by SiteQuantity

  SiteTexts TextsOfOldMode();
  void FillSlots(SolveFor mode, const SiteTexts& texts);
  void SetLocks(SolveFor mode);

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  FormBinding& binding_;
  SolveForWorkflow& workflow_;
  InteractiveSynchronisation& interactive_;
  SolveFor mode_ = SolveFor::None;  // the mode that the slots are filled for
};

}  // namespace orvik
