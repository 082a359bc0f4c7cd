// Draws the chart's transient marks: the hotspot, and the highlighted curve through it.
#pragma once

#include "chart/Hotspot.h"
#include "engine/EfficiencyCurve.h"
#include "platform/Surface.h"

namespace orvik {

// Colour that the marks flip: on white paper they are red.
inline constexpr Colour kMarkColour = 0xFFFF00;

// The box, and from it a line to the frame's left edge at the hotspot's R and one to its bottom
// edge at its V. Exclusive-or: drawn again, it is gone. Where the surface cannot do that the
// hotspot is drawn in the colour that it has on white.
void DrawHotspot(Surface& surface, const Hotspot& hotspot, const clsRectangle_Integer& frame,
                 int penWidth);

// The curve through its samples. Exclusive-or: drawn again, it is gone. False, and nothing is
// drawn, where a sample lies beyond 16-bit pixels.
bool DrawHighlightCurve(Surface& surface, const EfficiencyCurve& curve,
                        const PlotGeometry& geometry);

}  // namespace orvik
