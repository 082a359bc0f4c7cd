// Marks each result that no longer belongs to the numbers beside it: its text turns grey, and a
// screen reader says that it is out of date.
#pragma once

#include <array>

#include "design/Project.h"

namespace orvik {

class FormBinding;
struct ProjectForm;

class OutOfDateMarks {
 public:
  // Both outlive this.
  OutOfDateMarks(ProjectForm& form, const FormBinding& binding) : form_(form), binding_(binding) {}

  // --- What has just been written belongs to what the fields show ---

  void TakeCalculated();  // everything
  void TakeEIA();         // the EIA alone
  void TakePoint();       // all but the EIA, from which the site values of the point are made

  // Marks what is out of date now, and takes the mark from what is not.
  void Refresh();

  // Some result is marked.
  bool AreAny() const;

 private:
  void Compare(const Project& now);
  void Mark(Field field, bool isOutOfDate);

  ProjectForm& form_;
  const FormBinding& binding_;
  Project ofEIA_;      // the project when the EIA was written
  Project ofResults_;  // when the other results were
  std::array<bool, kFields> marked_{};
};

}  // namespace orvik
