#include "chart/HotspotDrawing.h"

#include <array>
#include <vector>

#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

constexpr Colour kWhite = 0xFFFFFF;

Pen MarkPen(const Surface& surface, int width) {
  if (surface.Supports(SurfaceFeature::ExclusiveOr)) {
    return {kMarkColour, width, DrawMode::ExclusiveOr};
  }
  return {kWhite ^ kMarkColour, width, DrawMode::Copy};
}

// The samples' pixels; one that several samples share is taken once.
std::vector<Point> CurvePixels(const EfficiencyCurve& curve, const PlotGeometry& geometry) {
  std::vector<Point> pixels;
  pixels.reserve(curve.V.size());
  for (std::size_t j = 0; j < curve.V.size(); ++j) {
    const Point pixel{geometry.XPlotToXFrame(curve.V[j]), geometry.YPlotToYFrame(curve.R[j])};
    if (pixels.empty() || pixels.back() != pixel) pixels.push_back(pixel);
  }
  return pixels;
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
  try {
    surface.Polyline(CurvePixels(curve, geometry), MarkPen(surface, 1));
    return true;
  } catch (const NumericError&) {
    return false;
  }
}

}  // namespace orvik
