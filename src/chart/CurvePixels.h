// A curve's samples as pixels, the corners of the line that shows it.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "engine/CurvePolygon.h"
#include "engine/EfficiencyCurve.h"
#include "engine/PlotRecords.h"
#include "platform/Surface.h"

namespace orvik {

// The frame with the pixels of its own lines, which curves may touch and not leave.
Area CurveArea(const clsRectangle_Integer& frame);

// The samples in order; a pixel that neighbours share is taken once. Nothing where a sample lies
// beyond 16-bit pixels.
std::optional<std::vector<Point>> CurvePixels(const EfficiencyCurve& curve,
                                              const PlotToFrame& mapping);

// The parts of a line that lie outside of the areas, in its order; without areas the line itself.
std::vector<std::vector<Point>> PiecesOutside(std::span<const Point> line,
                                              std::span<const Area> areas);

// Does the line come into the area?
bool Crosses(std::span<const Point> line, const Area& area);

}  // namespace orvik
