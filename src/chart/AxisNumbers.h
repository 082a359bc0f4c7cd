// Numbers and titles of the two axes.
#pragma once

#include "chart/ChartScene.h"
#include "chart/ChartText.h"

namespace orvik {

inline constexpr std::string_view kHorizontalAxisTitle =
    "V, Reuse Volume (inches on equivalent impervious area)";
inline constexpr std::string_view kVerticalAxisTitle =
    "R, Reuse Rate (in/day on equiv. impervious area)";

// The first number starts at its column and the last ends at its own, so that none leaves the
// frame's columns; those between are centred on theirs. Where the numbers do not all fit, every
// second, third ... of them is written, evenly; where no two do, none.
void DrawHorizontalAxisText(Surface& surface, const ChartScene& scene, TextRoom& room);

// Numbers centred on their rows, to the left of the frame; the same rule for those that do not fit.
// The title reads upwards on their left.
void DrawVerticalAxisText(Surface& surface, const ChartScene& scene, TextRoom& room);

}  // namespace orvik
