#include "printing/ResultWords.h"

#include "base/Text.h"
#include "project/WithoutResults.h"

namespace orvik {
namespace {

std::string Text(const ctrlMyTextBox& field) {
  return std::string(Trim(field.Text()));
}

std::string SiteText(ProjectForm& form, SiteQuantity quantity) {
  return Text(form.txtSolveFor(SlotOfQuantity(form.cmbSolveFor->ListIndex(), quantity)));
}

bool AllSlotsAreFilled(ProjectForm& form) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    if (Text(form.txtSolveFor(slot)).empty()) return false;
  }
  return true;
}

std::string Solution(ProjectForm& form) {
  const std::string efficiency =
      SiteText(form, SiteQuantity::Efficiency) + " percent of the runoff";
  const std::string storage = SiteText(form, SiteQuantity::StorageVolume) + " acre-feet";
  const std::string rate = SiteText(form, SiteQuantity::ReuseRate) + " inches per week";
  const std::string area = Text(form.txtIrrigationArea) + " acres";
  switch (form.cmbSolveFor->ListIndex()) {
    case SolveFor::kStorageVolume:
      return "To use " + efficiency + " by irrigating " + area + " with " + rate +
             ", the pond must store " + storage + ".";
    case SolveFor::kReuseRate:
      return "To use " + efficiency + " from a pond that stores " + storage +
             ", irrigation must apply " + rate + " to " + area + ".";
    default:
      return "A pond that stores " + storage + " and irrigates " + area + " with " + rate +
             " uses " + efficiency + ".";
  }
}

}  // namespace

bool HasResult(ProjectForm& form, const ctrlStormwaterReuse& chart) {
  return WhyWithoutResults(form, chart).empty() && AllSlotsAreFilled(form);
}

std::string ResultInWords(ProjectForm& form, const ctrlStormwaterReuse& chart) {
  if (HasResult(form, chart)) return Solution(form);
  const std::string why = WhyWithoutResults(form, chart);
  return "No result: " + (why.empty() ? "The project has not been calculated." : why);
}

}  // namespace orvik
