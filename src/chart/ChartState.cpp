#include "chart/ChartState.h"

#include "base/RuntimeErrors.h"

namespace orvik {

void ReplaceInFrame(ChartState& state) {
  DesignPoint& point = state.point;
  if (!state.IsPointOnChart()) return;
  try {
    PlaceAt(point, point.V, point.R, state.curves->Geometry());
  } catch (const OverflowError&) {
    point.isShown = false;
  }
}

}  // namespace orvik
