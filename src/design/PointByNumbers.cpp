#include "design/PointByNumbers.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/Text.h"
#include "design/NumberInput.h"
#include "engine/FramedCurves.h"

namespace orvik {
namespace {

// The number in a field as a whole one for the bitwise test; 0 where there is none, or where it is
// beyond 32 bits.
std::int32_t WholeNumberIn(const std::string& text) {
  if (!IsDefinedNumber(text)) return 0;
  const double rounded = RoundHalfToEven(ParseNumber(text));
  if (std::fabs(rounded) > std::numeric_limits<std::int32_t>::max()) return 0;
  return static_cast<std::int32_t>(rounded);
}

bool Agrees(const std::string& text, bool isDefined, float value) {
  const std::string_view shown = Trim(text);
  return shown.empty() || (isDefined && shown == ConvertToString(value));
}

}  // namespace

std::int16_t GuessBestInteractiveSolution(const Project& project, bool isLoaded) {
  if (!isLoaded) return 0;
  const std::int32_t R = WholeNumberIn(project.Text(Field::R));
  const std::int32_t E = WholeNumberIn(project.Text(Field::E));
  const std::int32_t V = WholeNumberIn(project.Text(Field::V));
  if ((V & R) != 0) return 1;
  if ((R & E) != 0) return 2;
  if ((V & E) != 0) return 3;
  return 0;
}

bool PointShowsNumbers(const Project& project) {
  const DesignPoint& point = project.point;
  return point.isShown && Agrees(project.Text(Field::R), true, SingleR(point)) &&
         Agrees(project.Text(Field::V), true, SingleV(point)) &&
         Agrees(project.Text(Field::E), point.HasE(), SingleE(point));
}

bool PlacePointByNumbers(DesignPoint& point, const Project& project, const FramedCurves* curves) {
  if (PointShowsNumbers(project)) return false;
  const double R = ParseNumber(project.Text(Field::R));
  const double V = ParseNumber(project.Text(Field::V));
  const std::string& E = project.Text(Field::E);
  switch (GuessBestInteractiveSolution(project, curves != nullptr)) {
    case 1:
      PlaceUsingRV(point, curves, R, V);
      return true;
    case 2:
      PlaceUsingER(point, curves, E, R);
      return true;
    case 3:
      PlaceUsingEV(point, curves, E, V);
      return true;
    default:
      return false;
  }
}

}  // namespace orvik
