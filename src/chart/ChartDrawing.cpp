#include "chart/ChartDrawing.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "base/RuntimeErrors.h"
#include "base/Text.h"
#include "chart/AxisSteps.h"
#include "chart/ChartColours.h"
#include "chart/CurvePixels.h"

namespace orvik {
namespace {

constexpr int kFramePerCurveWidth = 280;  // frame height over the width of a curve's line

int CurveWidth(const clsRectangle_Integer& frame) {
  return std::max(1, (frame.Bottom - frame.Top + kFramePerCurveWidth / 2) / kFramePerCurveWidth);
}

// Between the frame's lines, whose pixels lie about half on each side of its edges.
Area WithoutItsLines(const clsRectangle_Integer& frame, int lineWidth) {
  const int reach = lineWidth / 2;
  return {frame.Left + reach + 1, frame.Top + reach + 1, frame.Right - reach, frame.Bottom - reach};
}

// Wide lines end where they end; filled, they meet in square corners.
void FillFrameLines(Surface& surface, const clsRectangle_Integer& frame, int width) {
  const int before = width / 2;
  const int after = width - before;
  const Area outer{frame.Left - before, frame.Top - before, frame.Right + after,
                   frame.Bottom + after};
  surface.FillArea({outer.left, outer.top, outer.right, outer.top + width}, kBlack);
  surface.FillArea({outer.right - width, outer.top, outer.right, outer.bottom}, kBlack);
  surface.FillArea({outer.left, outer.bottom - width, outer.right, outer.bottom}, kBlack);
  surface.FillArea({outer.left, outer.top, outer.left + width, outer.bottom}, kBlack);
}

bool IsInside(Point point, const clsRectangle_Integer& frame) {
  return frame.Left < point.x && point.x < frame.Right && frame.Top < point.y &&
         point.y < frame.Bottom;
}

std::vector<int> StepColumns(const ChartScene& scene) {
  const clsPlotWindow& window = scene.geometry.Window();
  const clsRectangle_Integer& frame = scene.layout.frame;
  std::vector<int> columns;
  for (const double V :
       AxisValues(window.XMin, window.XMax, scene.curves.VInterval, frame.Right - frame.Left)) {
    const int column = scene.geometry.XPlotToXFrame(V);
    if (frame.Left < column && column < frame.Right) columns.push_back(column);
  }
  return columns;
}

std::vector<int> StepRows(const ChartScene& scene) {
  const clsPlotWindow& window = scene.geometry.Window();
  const clsRectangle_Integer& frame = scene.layout.frame;
  std::vector<int> rows;
  for (const double R :
       AxisValues(window.YMin, window.YMax, scene.curves.RInterval, frame.Bottom - frame.Top)) {
    const int row = scene.geometry.YPlotToYFrame(R);
    if (frame.Top < row && row < frame.Bottom) rows.push_back(row);
  }
  return rows;
}

void DrawDot(Surface& surface, Point centre, int reach, Colour colour) {
  surface.FillArea({centre.x - reach, centre.y - reach, centre.x + reach + 1, centre.y + reach + 1},
                   colour);
}

// Nothing where the place is beyond 16-bit pixels, far off the chart.
std::optional<Point> PlaceOf(const CurveLabel& label, const PlotGeometry& geometry) {
  try {
    return Point{geometry.XPlotToXFrame(label.V), geometry.YPlotToYFrame(label.R)};
  } catch (const NumericError&) {
    return std::nullopt;
  }
}

// A caption whose place lies in the frame is kept off the frame's right and bottom lines.
Point KeepInFrame(Point at, Size size, const clsRectangle_Integer& frame) {
  const int off = std::max(2, size.height / 4);  // pixels
  if (!IsInside(at, frame)) return at;
  return {std::min(at.x, frame.Right - off - size.width),
          std::min(at.y, frame.Bottom - off - size.height)};
}

std::optional<PlacedText> PlaceLabel(Surface& surface, const ChartScene& scene,
                                     const TextRoom& room, const CurveLabel& label,
                                     const Font& font) {
  const std::string_view text = Trim(label.Text);
  const auto place = PlaceOf(label, scene.geometry);
  if (text.empty() || !place) return std::nullopt;
  const Size size = surface.MeasureText(text, font);
  const Point at = KeepInFrame(*place, size, scene.layout.frame);
  PlacedText placed = PlaceLevel(std::string(text), font, size, at);
  if (!room.Has(placed.area)) return std::nullopt;
  return placed;
}

}  // namespace

void DrawTitleBlock(Surface& surface, const ChartScene& scene, TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.title);
  if (!IsReadable(height)) return;
  const Font font = ChartFont(height);
  const Size size = surface.MeasureText(scene.station, font);
  const clsRectangle_Integer& band = scene.layout.title;
  const Point at{(band.Left + band.Right) / 2 - size.width / 2, band.Top};
  if (at.y + size.height > scene.layout.frame.Top) return;
  room.Write(surface, PlaceLevel(std::string(scene.station), font, size, at));
}

void DrawPlotFrame(Surface& surface, const clsRectangle_Integer& frame, int penWidth) {
  if (penWidth > 1) return FillFrameLines(surface, frame, penWidth);
  const Pen pen{kBlack, penWidth};
  surface.Line({frame.Left, frame.Top}, {frame.Right, frame.Top}, pen);
  surface.Line({frame.Right, frame.Top}, {frame.Right, frame.Bottom}, pen);
  surface.Line({frame.Right, frame.Bottom}, {frame.Left, frame.Bottom}, pen);
  surface.Line({frame.Left, frame.Bottom}, {frame.Left, frame.Top}, pen);
}

void DrawGridAndTicks(Surface& surface, const ChartScene& scene) {
  const Area inside = WithoutItsLines(scene.layout.frame, scene.frameLine);
  const auto columns = StepColumns(scene);
  const auto rows = StepRows(scene);
  const int bottom = inside.bottom - 1;
  const Pen grid{kGridLines, scene.thinLine};
  for (const int x : columns) surface.Line({x, bottom}, {x, inside.top - 1}, grid);
  for (const int y : rows) surface.Line({inside.left, y}, {inside.right, y}, grid);
  const int tick = scene.PixelHeightOf(scene.heights.tick);
  const Pen ink{kBlack, scene.thinLine};
  for (const int x : columns) surface.Line({x, bottom}, {x, bottom - tick}, ink);
  for (const int y : rows) surface.Line({inside.left, y}, {inside.left + tick, y}, ink);
}

void DrawCurves(Surface& surface, const ChartScene& scene, std::span<const Area> spared) {
  const ClipScope clip(surface, CurveArea(scene.layout.frame));
  const int width = CurveWidth(scene.layout.frame);
  for (std::size_t i = 0; i < scene.curves.curves.size(); ++i) {
    const auto pixels = CurvePixels(scene.curves.curves[i], scene.geometry);
    if (!pixels) continue;
    for (const auto& piece : PiecesOutside(*pixels, spared)) {
      surface.Polyline(piece, {CurveColour(i), width});
    }
  }
}

void DrawCurveEnds(Surface& surface, const ChartScene& scene) {
  const int reach = CurveWidth(scene.layout.frame);
  for (std::size_t i = 0; i < scene.curves.curves.size(); ++i) {
    const auto pixels = CurvePixels(scene.curves.curves[i], scene.geometry);
    if (!pixels || pixels->empty()) continue;
    for (const Point end : {pixels->front(), pixels->back()}) {
      if (IsInside(end, scene.layout.frame)) DrawDot(surface, end, reach, CurveColour(i));
    }
  }
}

std::vector<PlacedText> PlaceLabels(Surface& surface, const ChartScene& scene,
                                    const TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.label);
  if (!IsReadable(height)) return {};
  std::vector<PlacedText> placed;
  for (const CurveLabel& label : scene.curves.labels) {
    auto text = PlaceLabel(surface, scene, room, label, ChartFont(height));
    const bool isFree = text && std::ranges::none_of(placed, [&](const PlacedText& other) {
                          return Overlap(text->area, other.area);
                        });
    if (isFree) placed.push_back(std::move(*text));
  }
  return placed;
}

void DrawLabels(Surface& surface, std::span<const PlacedText> labels) {
  for (const PlacedText& label : labels) {
    surface.FillArea(CharactersOf(label), kPaper);
    surface.WriteText(label.at, label.text, label.font, kBlack);
  }
}

}  // namespace orvik
