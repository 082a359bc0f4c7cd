#include "design/MissingInputs.h"

#include <string>

#include "base/Text.h"
#include "design/NumberInput.h"
#include "design/Project.h"

namespace orvik {
namespace {

bool IsNeeded(Field field, SolveFor mode) {
  switch (DesignOf(field).kind) {
    case FieldKind::Number:
      return true;
    case FieldKind::Slot:
      return IsTypedMode(mode) && field != Field::SolveFor3;
    default:
      return false;
  }
}

std::string CaptionOf(Field field, SolveFor mode) {
  for (int slot = 1; slot <= kSolveForSlots; ++slot) {
    if (field == SlotField(slot))
      return std::string(SiteQuantityCaption(QuantityInSlot(mode, slot)));
  }
  return PlainCaption(field);
}

}  // namespace

MissingInputs FindMissingInputs(const Project& project, bool isLoaded) {
  MissingInputs missing;
  if (project.station < 0) missing.lists.push_back(ListField::ClimateStation);
  if (project.mode == SolveFor::None) missing.lists.push_back(ListField::SolveForMode);
  for (const FieldDesign& field : Fields()) {
    const std::string& text = project.Text(field.id);
    if (!IsNeeded(field.id, project.mode) || IsDefinedNumber(text)) continue;
    (Trim(text).empty() ? missing.fields : missing.notNumbers).push_back(field.id);
  }
  const bool canHavePoint = isLoaded && project.mode == SolveFor::Interactive;
  missing.point = missing.IsEmpty() && canHavePoint && !project.point.isShown;
  return missing;
}

std::vector<Hint> HintsOf(const MissingInputs& missing, const Project& project) {
  std::vector<Hint> hints;
  hints.reserve(missing.notNumbers.size() + 2);
  for (const Field field : missing.notNumbers) {
    hints.push_back({HintId::NotANumber, {CaptionOf(field, project.mode)}});
  }
  std::string names;
  const auto add = [&](const std::string& name) { names += (names.empty() ? "" : ", ") + name; };
  for (const ListField list : missing.lists) add(PlainCaption(list));
  for (const Field field : missing.fields) add(CaptionOf(field, project.mode));
  if (!names.empty()) hints.push_back({HintId::StillNeeded, {names}});
  if (missing.point) hints.push_back({HintId::PointStillNeeded});
  return hints;
}

}  // namespace orvik
