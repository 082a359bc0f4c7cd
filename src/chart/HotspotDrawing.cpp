#include "chart/HotspotDrawing.h"

#include <algorithm>
#include <array>

#include "base/Rounding.h"
#include "chart/ChartColours.h"
#include "chart/ChartText.h"
#include "chart/CurvePixels.h"

namespace orvik {
namespace {

Pen MarkPen(const Surface& surface, int width) {
  if (surface.Supports(SurfaceFeature::ExclusiveOr)) {
    return {kMarkColour, width, DrawMode::ExclusiveOr};
  }
  return {kPaper ^ kMarkColour, width, DrawMode::Copy};
}

int MarkReach(int size) {
  return std::max(2, size / 2);
}

// Where a text of this size may stand beside the mark: at its four corners, then a little further
// away.
std::vector<Point> PlacesBeside(Point centre, Size size, int reach) {
  constexpr int kSteps = 3;
  std::vector<Point> places;
  for (int step = 1; step <= kSteps; ++step) {
    const int off = reach * step;
    const int right = centre.x + off;
    const int left = centre.x - off - size.width;
    const int above = centre.y - off - size.height;
    const int below = centre.y + off;
    places.insert(places.end(), {{right, above}, {left, above}, {right, below}, {left, below}});
  }
  return places;
}

// The place nearest to this one at which the text stays within the frame.
Point Clamp(Point at, Size size, const clsRectangle_Integer& frame) {
  return {std::max(frame.Left + 1, std::min(at.x, frame.Right - size.width)),
          std::max(frame.Top + 1, std::min(at.y, frame.Bottom - size.height))};
}

bool IsWithin(const Area& area, const clsRectangle_Integer& frame) {
  return frame.Left < area.left && area.right <= frame.Right && frame.Top < area.top &&
         area.bottom <= frame.Bottom;
}

}  // namespace

clsRectangle_Integer HotspotBox(FramePixel centre) {
  return {ToInt16(centre.x - kMarkReach), ToInt16(centre.x + kMarkReach),
          ToInt16(centre.y - kMarkReach), ToInt16(centre.y + kMarkReach)};
}

void DrawHotspot(Surface& surface, FramePixel centre, const clsRectangle_Integer& frame,
                 int penWidth) {
  const Pen pen = MarkPen(surface, penWidth);
  const clsRectangle_Integer box = HotspotBox(centre);
  const std::array<Point, 5> sides{{{box.Left, box.Top},
                                    {box.Right, box.Top},
                                    {box.Right, box.Bottom},
                                    {box.Left, box.Bottom},
                                    {box.Left, box.Top}}};
  surface.Polyline(sides, pen);
  // The leaders end before the box, whose own pixels they would flip back. Near the frame's edge
  // the box itself reaches it.
  const Point onLeftEdge{frame.Left, centre.y};
  const Point onBottomEdge{centre.x, frame.Bottom};
  if (onLeftEdge.x < box.Left) surface.Line(onLeftEdge, {box.Left, centre.y}, pen);
  if (onBottomEdge.y > box.Bottom) surface.Line(onBottomEdge, {centre.x, box.Bottom}, pen);
}

void PrintHotspotMark(Surface& surface, Point centre, const clsRectangle_Integer& frame, int size,
                      int penWidth) {
  const Pen pen{kRed, penWidth};
  surface.Line({frame.Left, centre.y}, centre, pen);
  surface.Line({centre.x, frame.Bottom}, centre, pen);
  const int reach = MarkReach(size);
  const std::array<Point, 4> diamond{{{centre.x, centre.y - reach},
                                      {centre.x + reach, centre.y},
                                      {centre.x, centre.y + reach},
                                      {centre.x - reach, centre.y}}};
  surface.FillPolygon(diamond, kRed);
}

void PrintHotspotText(Surface& surface, const std::string& text, Point centre,
                      const clsRectangle_Integer& frame, int size, std::span<const Area> captions,
                      std::span<const std::vector<Point>> curves) {
  const Font font = ChartFont(size);
  const Size extent = surface.MeasureText(text, font);
  if (extent.width == 0) return;  // no such font
  const auto places = PlacesBeside(centre, extent, MarkReach(size));
  const auto areaAt = [&](Point at) { return PlaceLevel(text, font, extent, at).area; };
  const auto isFree = [&](Point at) {
    return IsWithin(areaAt(at), frame) && std::ranges::none_of(captions, [&](const Area& caption) {
             return Overlap(areaAt(at), caption);
           });
  };
  const auto isClear = [&](Point at) {
    return isFree(at) && std::ranges::none_of(curves, [&](const std::vector<Point>& curve) {
             return Crosses(curve, areaAt(at));
           });
  };
  auto place = std::ranges::find_if(places, isClear);
  if (place == places.end()) place = std::ranges::find_if(places, isFree);
  const Point at = place == places.end() ? Clamp(places.front(), extent, frame) : *place;
  surface.FillArea(CharactersOf(PlaceLevel(text, font, extent, at)), kPaper);
  surface.WriteText(at, text, font, kRed);
}

bool DrawHighlightCurve(Surface& surface, const EfficiencyCurve& curve,
                        const PlotGeometry& geometry) {
  const auto pixels = CurvePixels(curve, geometry);
  if (!pixels) return false;
  const ClipScope clip(surface, CurveArea(geometry.Frame()));
  surface.Polyline(*pixels, MarkPen(surface, 1));
  return true;
}

}  // namespace orvik
