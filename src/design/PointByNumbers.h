// The design point that the normalized numbers of the fields place in the interactive mode.
#pragma once

#include <cstdint>

#include "design/Project.h"

namespace orvik {

// Which pair of the numbers in txtR, txtE and txtV can place the point: 1 = R and V, 2 = E and R, 3
// = E and V, 0 = none. A pair counts where the two numbers, rounded to whole ones, have a binary
// digit in common; so numbers below one half count as absent. 0 where no curves are loaded.
std::int16_t GuessBestInteractiveSolution(const Project& project, bool isLoaded);

// True when every number in txtR, txtE and txtV is the point's own; empty fields agree with
// anything, but a hidden point with nothing.
bool PointShowsNumbers(const Project& project);

// Places the point by the pair that GuessBestInteractiveSolution finds, so that the user finds it
// where the project's numbers are. A project's point that stands at these numbers already is left
// as exact as it is. True if it was placed anew. Throws NumericError.
bool PlacePointByNumbers(DesignPoint& point, const Project& project, const FramedCurves* curves);

}  // namespace orvik
