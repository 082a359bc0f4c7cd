// Draws the chart's transient marks: the hotspot, and the highlighted curve through it.
#pragma once

#include <span>
#include <string>

#include "engine/EfficiencyCurve.h"
#include "engine/FramePixel.h"
#include "engine/PlotGeometry.h"
#include "platform/Surface.h"

namespace orvik {

// Colour that the marks flip: on white paper they are red.
inline constexpr Colour kMarkColour = 0xFFFF00;

// The box round the hotspot's pixel.
clsRectangle_Integer HotspotBox(FramePixel centre);

// The box, and from it a line to the frame's left edge at the hotspot's R and one to its bottom
// edge at its V. Exclusive-or: drawn again, it is gone. Where the surface cannot do that the
// hotspot is drawn in the colour that it has on white.
void DrawHotspot(Surface& surface, FramePixel centre, const clsRectangle_Integer& frame,
                 int penWidth);

// The hotspot on paper: a filled red mark at its pixel, with thin leaders to the frame's left and
// bottom edges. `size` is the height of the chart's texts in pixels.
void PrintHotspotMark(Surface& surface, Point centre, const clsRectangle_Integer& frame, int size,
                      int penWidth);

// Its text, in red on cleared paper, beside the mark: in the first place round it that lies in the
// frame and covers neither a caption nor a curve, else no caption; else as near as the frame
// allows.
void PrintHotspotText(Surface& surface, const std::string& text, Point centre,
                      const clsRectangle_Integer& frame, int size, std::span<const Area> captions,
                      std::span<const std::vector<Point>> curves);

// The curve through its samples. Exclusive-or: drawn again, it is gone. False, and nothing is
// drawn, where a sample lies beyond 16-bit pixels.
bool DrawHighlightCurve(Surface& surface, const EfficiencyCurve& curve,
                        const PlotGeometry& geometry);

}  // namespace orvik
