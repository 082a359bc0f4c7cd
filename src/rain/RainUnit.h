// The units of depths in daily rainfall files.
#pragma once

#include <optional>
#include <string_view>

namespace orvik {

enum class RainUnit { Inches, HundredthsOfInch, Millimetres, TenthsOfMillimetre };

inline constexpr RainUnit kRainUnits[] = {RainUnit::Inches, RainUnit::HundredthsOfInch,
                                          RainUnit::Millimetres, RainUnit::TenthsOfMillimetre};

// "in", "hundredths-in", "mm", "tenths-mm".
std::string_view RainUnitName(RainUnit unit);
std::optional<RainUnit> FindRainUnit(std::string_view name);

// How many of the unit make one inch.
double UnitsPerInch(RainUnit unit);

}  // namespace orvik
