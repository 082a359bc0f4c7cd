#include "entry/ProjectResults.h"

#include "base/Text.h"
#include "project/Conversions.h"
#include "project/NumberInput.h"

namespace orvik {
namespace {

std::string TextOf(ProjectForm& form, SiteQuantity quantity) {
  const std::int16_t mode = form.cmbSolveFor->ListIndex();
  if (!IsSolveForMode(mode)) return {};
  return std::string(Trim(form.txtSolveFor(SlotOfQuantity(mode, quantity)).Text()));
}

}  // namespace

std::string ReuseRateResult(ProjectForm& form) {
  const std::string rate = TextOf(form, SiteQuantity::ReuseRate);
  const std::string area = form.txtIrrigationArea.Text();
  if (!IsDefinedNumber(rate) || !IsDefinedNumber(area)) return {};
  try {
    return InchesPerWeek_To_GPD(rate, area);
  } catch (const OverflowError&) {
    return {};
  }
}

std::string EfficiencyResult(ProjectForm& form) {
  return TextOf(form, SiteQuantity::Efficiency);
}

std::string StorageVolumeResult(ProjectForm& form) {
  return TextOf(form, SiteQuantity::StorageVolume);
}

}  // namespace orvik
