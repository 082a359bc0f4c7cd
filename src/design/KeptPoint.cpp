#include "design/KeptPoint.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "base/NumberText.h"

namespace orvik {
namespace {

bool BeginsWithNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  if (text.starts_with('.')) text.remove_prefix(1);
  return text.find_first_of("0123456789") == 0;
}

// The text where it is a number; else the number that ParseNumber reads in it.
std::optional<std::string> NumberIn(const std::string& text) {
  if (IsNumericText(text)) return text;
  const double number = ParseNumber(text);
  if (!BeginsWithNumber(text) || !std::isfinite(number)) return std::nullopt;
  return ToShortestText(number);
}

}  // namespace

std::optional<StoredPoint> PointToKeep(const Project& project,
                                       const std::optional<StoredPoint>& stored) {
  if (project.mode != SolveFor::Interactive || project.point.isShown || !stored) return {};
  auto R = NumberIn(stored->R);
  auto V = NumberIn(stored->V);
  if (!R || !V) return {};
  return StoredPoint{*std::move(R), *std::move(V)};
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
