// Keeps the window's fields and the chart's hotspot together in the interactive mode.
#pragma once

#include <cstdint>
#include <functional>

namespace orvik {

class FormBinding;
class ctrlStormwaterReuse;
struct ProjectForm;

// Takes over the chart's events Change, MousePressed and MouseReleased for its own life.
class InteractiveSynchronisation {
 public:
  // All outlive this.
  InteractiveSynchronisation(ProjectForm& form, ctrlStormwaterReuse& chart, FormBinding& binding);
  InteractiveSynchronisation(const InteractiveSynchronisation&) = delete;
  InteractiveSynchronisation& operator=(const InteractiveSynchronisation&) = delete;
  ~InteractiveSynchronisation();

  // The hotspot has been placed or moved: its R, E and V go to the fields, and in the interactive
  // mode, where the EIA and the irrigation area are known, the site values too. A number that
  // single precision cannot hold becomes a message.
  void AnswerChange();

  std::function<void()> OnPointShown;  // after every AnswerChange

  // While the point is dragged the error bar makes no sound.
  void AnswerMousePressed();
  void AnswerMouseReleased();

  // See design/PointByNumbers. Throws NumericError.
  bool PlaceHotspotByNumbers();
  bool HotspotShowsNumbers() const;

  // A point placed by mouse or keys is in double precision, a project keeps it in single. Puts the
  // point where the project will have it, so that what is saved is what is shown. Throws
  // NumericError.
  void PlaceAsStored();

 private:
  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
  FormBinding& binding_;
};

}  // namespace orvik
