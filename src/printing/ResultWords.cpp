#include "printing/ResultWords.h"

#include "design/Project.h"
#include "design/WithoutResults.h"

namespace orvik {
namespace {

bool AllSlotsAreFilled(const Project& project) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    if (project.Trimmed(SlotField(slot)).empty()) return false;
  }
  return true;
}

std::string Solution(const Project& project) {
  const std::string efficiency =
      project.SiteText(SiteQuantity::Efficiency) + " percent of the runoff";
  const std::string storage = project.SiteText(SiteQuantity::StorageVolume) + " acre-feet";
  const std::string rate = project.SiteText(SiteQuantity::ReuseRate) + " inches per week";
  const std::string area = project.Trimmed(Field::IrrigationArea) + " acres";
  switch (project.mode) {
    case SolveFor::StorageVolume:
      return "To use " + efficiency + " by irrigating " + area + " with " + rate +
             ", the pond must store " + storage + ".";
    case SolveFor::ReuseRate:
      return "To use " + efficiency + " from a pond that stores " + storage +
             ", irrigation must apply " + rate + " to " + area + ".";
    default:
      return "A pond that stores " + storage + " and irrigates " + area + " with " + rate +
             " uses " + efficiency + ".";
  }
}

}  // namespace

bool HasResult(const Project& project, const std::string& shown) {
  return WhyNoResult(project, shown).empty() && AllSlotsAreFilled(project);
}

std::string ResultInWords(const Project& project, const std::string& shown) {
  if (HasResult(project, shown)) return Solution(project);
  const std::string why = WhyNoResult(project, shown);
  return "No result: " + (why.empty() ? Sentence({MessageId::NotCalculated}) : why);
}

}  // namespace orvik
