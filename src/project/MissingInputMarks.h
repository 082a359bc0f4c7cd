// Shows a user who pressed Enter too early what a result still needs: a hint names it, and each
// field has a mark until it is filled.
#pragma once

#include <string>

#include "design/MissingInputs.h"

namespace orvik {

class FormBinding;
class ctrlStormwaterReuse;
struct ProjectForm;

class MissingInputMarks {
 public:
  // All outlive this.
  MissingInputMarks(ProjectForm& form, const ctrlStormwaterReuse& chart, const FormBinding& binding)
      : form_(form), chart_(chart), binding_(binding) {}

  // Names and marks what is missing; says nothing where all is there.
  void Say();

  // While something is said: that of it which has been filled since is said no more.
  void Refresh();

  void TakeBack();

 private:
  void Show(const MissingInputs& missing);
  void Mark(const MissingInputs& missing, bool isMarked);
  void Mark(Field field, bool isMarked, std::string_view description);

  ProjectForm& form_;
  const ctrlStormwaterReuse& chart_;
  const FormBinding& binding_;
  MissingInputs said_;
};

}  // namespace orvik
