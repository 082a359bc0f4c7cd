// A curve's samples as pixels, the corners of the line that shows it.
#pragma once

#include <optional>
#include <vector>

#include "engine/CurvePolygon.h"
#include "engine/EfficiencyCurve.h"
#include "platform/Surface.h"

namespace orvik {

// The samples in order; a pixel that neighbours share is taken once. Nothing where a sample lies
// beyond 16-bit pixels.
std::optional<std::vector<Point>> CurvePixels(const EfficiencyCurve& curve,
                                              const PlotToFrame& mapping);

}  // namespace orvik
