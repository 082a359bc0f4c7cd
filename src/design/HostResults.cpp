#include "design/HostResults.h"

#include "base/RuntimeErrors.h"
#include "design/Conversions.h"
#include "design/NumberInput.h"
#include "design/Project.h"

namespace orvik {

std::string ReuseRateResult(const Project& project) {
  const std::string rate = project.SiteText(SiteQuantity::ReuseRate);
  const std::string& area = project.Text(Field::IrrigationArea);
  if (!IsDefinedNumber(rate) || !IsDefinedNumber(area)) return {};
  try {
    return InchesPerWeek_To_GPD(rate, area);
  } catch (const OverflowError&) {
    return {};
  }
}

std::string EfficiencyResult(const Project& project) {
  return project.SiteText(SiteQuantity::Efficiency);
}

std::string StorageVolumeResult(const Project& project) {
  return project.SiteText(SiteQuantity::StorageVolume);
}

}  // namespace orvik
