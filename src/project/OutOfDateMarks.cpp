#include "project/OutOfDateMarks.h"

#include <algorithm>

#include "design/OutOfDate.h"
#include "project/FormBinding.h"
#include "project/ProjectForm.h"

namespace orvik {

void OutOfDateMarks::TakeCalculated() {
  ofEIA_ = binding_.Snapshot();
  ofResults_ = ofEIA_;
  Compare(ofEIA_);
}

void OutOfDateMarks::TakeEIA() {
  ofEIA_ = binding_.Snapshot();
}

// Where the EIA is that of another basin, so are the site values.
void OutOfDateMarks::TakePoint() {
  const Project now = binding_.Snapshot();
  ofResults_ = now;
  for (const Field field : {Field::BasinArea, Field::RunoffCoefficient}) {
    ofResults_.Text(field) = ofEIA_.Text(field);
  }
  Compare(now);
}

void OutOfDateMarks::Refresh() {
  Compare(binding_.Snapshot());
}

void OutOfDateMarks::Compare(const Project& now) {
  for (const FieldDesign& field : Fields()) {
    const bool isEIA = field.id == Field::EquivalentImperviousArea;
    Mark(field.id, IsOutOfDate(field.id, isEIA ? ofEIA_ : ofResults_, now));
  }
}

bool OutOfDateMarks::AreAny() const {
  return std::ranges::find(marked_, true) != marked_.end();
}

void OutOfDateMarks::Mark(Field field, bool isOutOfDate) {
  bool& isMarked = marked_[static_cast<std::size_t>(field)];
  if (isMarked == isOutOfDate) return;
  isMarked = isOutOfDate;
  form_.Box(field).ForeColor(isOutOfDate ? kGreyText : kWindowText);
  form_.Box(field).Description(isOutOfDate ? "out of date" : "");
}

}  // namespace orvik
