// What the design chart is about: the curves of a station in the chart's frame, and the design
// point on them.
#pragma once

#include <optional>

#include "design/DesignPoint.h"
#include "engine/FramedCurves.h"

namespace orvik {

struct ChartState {
  std::optional<FramedCurves> curves;  // none while no station's curves are loaded
  DesignPoint point;

  const FramedCurves* Loaded() const { return curves ? &*curves : nullptr; }
  bool IsPointOnChart() const { return curves && point.isShown; }
};

// Places a shown point in the frame of the curves, from its V and R. One that would lie beyond the
// 16-bit pixels there is hidden.
void ReplaceInFrame(ChartState& state);

}  // namespace orvik
