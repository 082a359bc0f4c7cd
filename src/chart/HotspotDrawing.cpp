#include "chart/HotspotDrawing.h"

#include <array>

#include "chart/ChartColours.h"
#include "chart/CurvePixels.h"

namespace orvik {
namespace {

Pen MarkPen(const Surface& surface, int width) {
  if (surface.Supports(SurfaceFeature::ExclusiveOr)) {
    return {kMarkColour, width, DrawMode::ExclusiveOr};
  }
  return {kPaper ^ kMarkColour, width, DrawMode::Copy};
}

}  // namespace

void DrawHotspot(Surface& surface, const Hotspot& hotspot, const clsRectangle_Integer& frame,
                 int penWidth) {
  const Pen pen = MarkPen(surface, penWidth);
  const clsRectangle_Integer& box = hotspot.Box();
  const std::array<Point, 5> sides{{{box.Left, box.Top},
                                    {box.Right, box.Top},
                                    {box.Right, box.Bottom},
                                    {box.Left, box.Bottom},
                                    {box.Left, box.Top}}};
  surface.Polyline(sides, pen);
  // The leaders end before the box, whose own pixels they would flip back. Near the frame's edge
  // the box itself reaches it.
  const Point onLeftEdge{frame.Left, hotspot.Y()};
  const Point onBottomEdge{hotspot.X(), frame.Bottom};
  if (onLeftEdge.x < box.Left) surface.Line(onLeftEdge, {box.Left, hotspot.Y()}, pen);
  if (onBottomEdge.y > box.Bottom) surface.Line(onBottomEdge, {hotspot.X(), box.Bottom}, pen);
}

bool DrawHighlightCurve(Surface& surface, const EfficiencyCurve& curve,
                        const PlotGeometry& geometry) {
  const auto pixels = CurvePixels(curve, geometry);
  if (pixels) surface.Polyline(*pixels, MarkPen(surface, 1));
  return pixels.has_value();
}

}  // namespace orvik
