#include "design/OutOfDate.h"

#include <algorithm>
#include <initializer_list>

#include "base/Text.h"
#include "design/Project.h"

namespace orvik {
namespace {

using enum Field;

class Comparison {
 public:
  Comparison(const Project& then, const Project& now) : then_(then), now_(now) {}

  bool HasChanged(Field field) const { return then_.Text(field) != now_.Text(field); }

  // The numbers that the field's number is made from differ, or the curves that it is read from.
  bool HasOtherInputs(Field field) const {
    if (field == EquivalentImperviousArea) return AnyChanged({BasinArea, RunoffCoefficient});
    if (now_.mode != then_.mode) return true;
    return IsTypedMode(now_.mode) ? OfTypedMode(field) : OfPoint(field);
  }

 private:
  bool AnyChanged(std::initializer_list<Field> fields) const {
    return std::ranges::any_of(fields, [this](Field field) { return HasChanged(field); });
  }

  bool EIAHasChanged() const { return AnyChanged({BasinArea, RunoffCoefficient}); }

  // Two slots are given. Each of R, V and E that is given is its slot's number, normalized on the
  // EIA; the third, and its slot, are solved for from everything.
  bool OfTypedMode(Field field) const {
    const Field slot = SlotOf(field);
    if (slot == SolveFor3) {
      return EIAHasChanged() || StationHasChanged() ||
             AnyChanged({IrrigationArea, SolveFor1, SolveFor2});
    }
    if (HasChanged(slot)) return true;
    if (field == Field::E) return false;
    return EIAHasChanged() || (field == Field::R && HasChanged(IrrigationArea));
  }

  // R, E and V are the point's, and so are the slots: a number typed for one of them belongs to
  // another point.
  bool OfPoint(Field field) const {
    if (AnyChanged({Field::R, Field::E, Field::V})) return true;
    if (field == Field::E || field == SolveFor2) return StationHasChanged();
    if (field == SolveFor1) return EIAHasChanged() || HasChanged(IrrigationArea);
    return field == SolveFor3 && EIAHasChanged();
  }

  bool StationHasChanged() const { return then_.station != now_.station; }

  // The slot with the quantity that the field shows on the EIA; a slot's own is itself.
  Field SlotOf(Field field) const {
    switch (field) {
      case Field::R:
        return FieldOfQuantity(now_.mode, SiteQuantity::ReuseRate);
      case Field::E:
        return FieldOfQuantity(now_.mode, SiteQuantity::Efficiency);
      case Field::V:
        return FieldOfQuantity(now_.mode, SiteQuantity::StorageVolume);
      default:
        return field;
    }
  }

  const Project& then_;
  const Project& now_;
};

// What the user may type in the mode is no result. R, E and V are both in the interactive mode.
bool IsResult(Field field, SolveFor mode) {
  switch (DesignOf(field).kind) {
    case FieldKind::Result:
    case FieldKind::Normalized:
      return true;
    case FieldKind::Slot:
      return !IsTypedMode(mode) || field == SolveFor3;
    default:
      return false;
  }
}

}  // namespace

bool IsOutOfDate(Field field, const Project& then, const Project& now) {
  if (!IsResult(field, now.mode) || Trim(now.Text(field)).empty()) return false;
  const Comparison comparison(then, now);
  return !comparison.HasChanged(field) && comparison.HasOtherInputs(field);
}

}  // namespace orvik
