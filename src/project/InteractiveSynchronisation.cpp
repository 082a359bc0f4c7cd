#include "project/InteractiveSynchronisation.h"

#include "base/NumberText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "design/Calculate.h"
#include "design/PointByNumbers.h"
#include "project/FormBinding.h"
#include "project/ProjectForm.h"

namespace orvik {

InteractiveSynchronisation::InteractiveSynchronisation(ProjectForm& form,
                                                       ctrlStormwaterReuse& chart,
                                                       FormBinding& binding)
    : form_(form), chart_(chart), binding_(binding) {
  chart_.OnChange = [this] { AnswerChange(); };
  chart_.OnMousePressed = [this] { AnswerMousePressed(); };
  chart_.OnMouseReleased = [this] { AnswerMouseReleased(); };
}

InteractiveSynchronisation::~InteractiveSynchronisation() {
  chart_.OnChange = nullptr;
  chart_.OnMousePressed = nullptr;
  chart_.OnMouseReleased = nullptr;
}

void InteractiveSynchronisation::AnswerChange() {
  binding_.Show(FollowPoint(binding_.Snapshot()));
  if (OnPointShown) OnPointShown();
}

void InteractiveSynchronisation::AnswerMousePressed() {
  form_.txtErrMsg.BeepOn(false);
}

void InteractiveSynchronisation::AnswerMouseReleased() {
  form_.txtErrMsg.BeepOn(true);
}

bool InteractiveSynchronisation::PlaceHotspotByNumbers() {
  const Project project = binding_.Snapshot();
  return chart_.ChangePoint([&](DesignPoint& point, const FramedCurves* curves) {
    return PlacePointByNumbers(point, project, curves);
  });
}

bool InteractiveSynchronisation::HotspotShowsNumbers() const {
  return PointShowsNumbers(binding_.Snapshot());
}

void InteractiveSynchronisation::PlaceAsStored() {
  const DesignPoint& point = chart_.Point();
  if (form_.Mode() != SolveFor::Interactive || !point.isShown) return;
  const std::string storedR = ToShortestText(SingleR(point));
  const std::string storedV = ToShortestText(SingleV(point));
  if (ParseNumber(storedR) == point.R && ParseNumber(storedV) == point.V) return;
  std::string E;
  chart_.SetHotspotUsing_RV(storedR, storedV, E);
  const std::string shown = form_.Box(Field::E).Text();
  if (!shown.empty() && shown != E) AnswerChange();
}

}  // namespace orvik
