// The design point of the interactive mode where the curves that are there cannot show it: it is
// kept, so that a project that is opened without its curves does not lose it by being saved.
#pragma once

#include <optional>

#include "design/Hints.h"
#include "design/Project.h"

namespace orvik {

// The point that the project has to keep: the one that its file holds, unless it is shown. A text
// counts for the number that it begins with, as where the curves are there: "0.15x" is kept as
// 0.15. Nothing where a text begins with none, or with one that is too large.
std::optional<StoredPoint> PointToKeep(const Project& project,
                                       const std::optional<StoredPoint>& stored);

// Places a kept point where the curves can show it; else leaves the point as it was. `curves` is
// null where none are loaded. Throws NumericError where the curves cannot be used.
void PlaceKeptPoint(DesignPoint& point, const FramedCurves* curves, const StoredPoint& kept);

// That the point is kept, and why; nothing where none is.
std::optional<Hint> HintOfKeptPoint(const Project& project, bool isLoaded);

}  // namespace orvik
