#include "rain/RainUnit.h"

namespace orvik {

std::string_view RainUnitName(RainUnit unit) {
  switch (unit) {
    case RainUnit::Inches:
      return "in";
    case RainUnit::HundredthsOfInch:
      return "hundredths-in";
    case RainUnit::Millimetres:
      return "mm";
    case RainUnit::TenthsOfMillimetre:
      break;
  }
  return "tenths-mm";
}

std::optional<RainUnit> FindRainUnit(std::string_view name) {
  for (const RainUnit unit : kRainUnits) {
    if (RainUnitName(unit) == name) return unit;
  }
  return std::nullopt;
}

double UnitsPerInch(RainUnit unit) {
  switch (unit) {
    case RainUnit::Inches:
      return 1;
    case RainUnit::HundredthsOfInch:
      return 100;
    case RainUnit::Millimetres:
      return 25.4;
    case RainUnit::TenthsOfMillimetre:
      break;
  }
  return 254;
}

}  // namespace orvik
