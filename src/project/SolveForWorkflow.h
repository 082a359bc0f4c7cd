// The recalculation of the project that the form shows.
#pragma once

#include <functional>

namespace orvik {

class FormBinding;
class ctrlStormwaterReuse;
struct ProjectForm;

class SolveForWorkflow {
 public:
  // All outlive this.
  SolveForWorkflow(ProjectForm& form, ctrlStormwaterReuse& chart, FormBinding& binding)
      : form_(form), chart_(chart), binding_(binding) {}

  // Recalculates everything. The first fault is shown on the error bar and ends the run; fields
  // filled before it keep their new values. Throws nothing.
  void ReCalc();

  std::function<void()> OnRecalculated;  // after every ReCalc, whatever came of it

  // True when a recalculation has all that it needs. Asks quietly, shows nothing.
  bool IsDataDefined() const;

  // Writes the EIA where both the basin area and the runoff coefficient are numbers; otherwise
  // leaves it as it is: false. No range check: the user may be in the middle of typing.
  bool UpdateEquivalentImperviousArea();

 private:
  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  FormBinding& binding_;
};

}  // namespace orvik
