#include "design/KeptPoint.h"

#include <utility>

#include "base/NumberText.h"

namespace orvik {

std::optional<StoredPoint> PointToKeep(const Project& project,
                                       const std::optional<StoredPoint>& stored) {
  if (project.mode != SolveFor::Interactive || project.point.isShown || !stored) return {};
  if (!IsNumericText(stored->R) || !IsNumericText(stored->V)) return {};
  return stored;
}

void PlaceKeptPoint(DesignPoint& point, const FramedCurves* curves, const StoredPoint& kept) {
  DesignPoint placed = point;
  PlaceUsingRV(placed, curves, ParseNumber(kept.R), ParseNumber(kept.V));
  if (placed.isShown) point = std::move(placed);
}

std::optional<Hint> HintOfKeptPoint(const Project& project, bool isLoaded) {
  if (!project.keptPoint) return std::nullopt;
  const HintId why = isLoaded ? HintId::PointKeptOffChart : HintId::PointKeptWithoutCurves;
  return Hint{why, {project.keptPoint->R, project.keptPoint->V}};
}

}  // namespace orvik
