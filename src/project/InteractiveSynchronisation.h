// Keeps the window's fields and the chart's hotspot together in the interactive mode.
#pragma once

#include <cstdint>

#include "chart/ctrlStormwaterReuse.h"
#include "project/ProjectForm.h"

namespace orvik {

// Takes over the chart's events Change, MousePressed and MouseReleased for its own life.
class InteractiveSynchronisation {
 public:
  InteractiveSynchronisation(ProjectForm& form, ctrlStormwaterReuse& chart);
  InteractiveSynchronisation(const InteractiveSynchronisation&) = delete;
  InteractiveSynchronisation& operator=(const InteractiveSynchronisation&) = delete;
  ~InteractiveSynchronisation();

  // The hotspot has been placed or moved: its R, E and V go to the fields, and in the interactive
  // mode, where the EIA and the irrigation area are known, the site values too. Throws NumericError
  // where single precision cannot hold a site value.
  void AnswerChange();

  // While the point is dragged the error bar makes no sound.
  void AnswerMousePressed() { form_.txtErrMsg.BeepOn(kFalse16); }
  void AnswerMouseReleased() { form_.txtErrMsg.BeepOn(kTrue16); }

  // Which pair of the numbers in txtR, txtE and txtV can place the hotspot: 1 = R and V, 2 = E and
  // R, 3 = E and V, 0 = none. A pair counts where the two numbers, rounded to whole ones, have a
  // binary digit in common; so numbers below one half count as absent.
  std::int16_t GuessBestInteractiveSolution() const;

  // Places the hotspot by the pair that GuessBestInteractiveSolution finds, so that the user finds
  // the point where the numbers are. A hotspot that stands at these numbers already is left as
  // exact as it is. True if it was placed anew.
  bool PlaceHotspotByNumbers();

  // A point placed by mouse or keys is in double precision, a project keeps it in single. Puts the
  // point where the project will have it, so that what is saved is what is shown.
  void PlaceAsStored();

  // True when every number in txtR, txtE and txtV is the hotspot's own; empty fields agree with
  // anything, but a hidden hotspot with nothing.
  bool HotspotShowsNumbers() const;

 private:
  // Each shows one of the hotspot's numbers, and with `intoSlot` its site value too.
  void ShowR(bool intoSlot);
  void ShowE(bool intoSlot);
  void ShowV(bool intoSlot);
  void ShowConverted(SiteQuantity quantity, bool converted, const std::string& site,
                     const std::string& message);
  void ShowChartMessage();

  ProjectForm& form_;
  ctrlStormwaterReuse& chart_;
};

}  // namespace orvik
