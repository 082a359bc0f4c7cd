#include "chart/ChartDrawing.h"

#include <algorithm>
#include <optional>
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

Area WithItsLines(const clsRectangle_Integer& frame) {
  return {frame.Left, frame.Top, frame.Right + 1, frame.Bottom + 1};
}

bool IsInside(Point point, const clsRectangle_Integer& frame) {
  return frame.Left < point.x && point.x < frame.Right && frame.Top < point.y &&
         point.y < frame.Bottom;
}

std::vector<int> StepColumns(const ChartScene& scene) {
  const clsPlotWindow& window = scene.geometry.Window();
  const clsRectangle_Integer& frame = scene.layout.Frame;
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
  const clsRectangle_Integer& frame = scene.layout.Frame;
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

// The paper that a text covers; above its characters a cell is blank.
Area CharactersOf(Point at, Size size) {
  return {at.x, at.y + size.height / 6, at.x + size.width, at.y + size.height};
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

void DrawLabel(Surface& surface, const ChartScene& scene, const TextRoom& room,
               const CurveLabel& label, const Font& font) {
  const std::string_view text = Trim(label.Text);
  const auto place = PlaceOf(label, scene.geometry);
  if (text.empty() || !place) return;
  const Size size = surface.MeasureText(text, font);
  const Point at = KeepInFrame(*place, size, scene.layout.Frame);
  if (!room.Has(PlaceLevel(std::string(text), font, size, at).area)) return;
  surface.FillArea(CharactersOf(at, size), kPaper);
  surface.WriteText(at, text, font, kBlack);
}

}  // namespace

void DrawTitleBlock(Surface& surface, const ChartScene& scene, TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.Title);
  if (!IsReadable(height)) return;
  const Font font = ChartFont(height);
  const Size size = surface.MeasureText(scene.station, font);
  const clsRectangle_Integer& band = scene.layout.Title;
  const Point at{(band.Left + band.Right) / 2 - size.width / 2, band.Top};
  if (at.y + size.height > scene.layout.Frame.Top) return;
  room.Write(surface, PlaceLevel(std::string(scene.station), font, size, at));
}

void DrawPlotFrame(Surface& surface, const clsRectangle_Integer& frame, int penWidth) {
  const Pen pen{kBlack, penWidth};
  surface.Line({frame.Left, frame.Top}, {frame.Right, frame.Top}, pen);
  surface.Line({frame.Right, frame.Top}, {frame.Right, frame.Bottom}, pen);
  surface.Line({frame.Right, frame.Bottom}, {frame.Left, frame.Bottom}, pen);
  surface.Line({frame.Left, frame.Bottom}, {frame.Left, frame.Top}, pen);
}

void DrawGridAndTicks(Surface& surface, const ChartScene& scene) {
  const clsRectangle_Integer& frame = scene.layout.Frame;
  const auto columns = StepColumns(scene);
  const auto rows = StepRows(scene);
  for (const int x : columns) surface.Line({x, frame.Bottom - 1}, {x, frame.Top}, {kGridLines});
  for (const int y : rows) surface.Line({frame.Left + 1, y}, {frame.Right, y}, {kGridLines});
  const int tick = scene.PixelHeightOf(scene.heights.Tick);
  for (const int x : columns) surface.Line({x, frame.Bottom - 1}, {x, frame.Bottom - 1 - tick}, {});
  for (const int y : rows) surface.Line({frame.Left + 1, y}, {frame.Left + 1 + tick, y}, {});
}

void DrawCurves(Surface& surface, const ChartScene& scene) {
  const ClipScope clip(surface, WithItsLines(scene.layout.Frame));
  const int width = CurveWidth(scene.layout.Frame);
  for (std::size_t i = 0; i < scene.curves.Curves.size(); ++i) {
    const auto pixels = CurvePixels(scene.curves.Curves[i], scene.geometry);
    if (pixels) surface.Polyline(*pixels, {CurveColour(i), width});
  }
}

void DrawCurveEnds(Surface& surface, const ChartScene& scene) {
  const int reach = CurveWidth(scene.layout.Frame);
  for (std::size_t i = 0; i < scene.curves.Curves.size(); ++i) {
    const auto pixels = CurvePixels(scene.curves.Curves[i], scene.geometry);
    if (!pixels || pixels->empty()) continue;
    for (const Point end : {pixels->front(), pixels->back()}) {
      if (IsInside(end, scene.layout.Frame)) DrawDot(surface, end, reach, CurveColour(i));
    }
  }
}

void DrawLabels(Surface& surface, const ChartScene& scene, const TextRoom& room) {
  const int height = scene.PixelHeightOf(scene.heights.Label);
  if (!IsReadable(height)) return;
  const Font font = ChartFont(height);
  for (const CurveLabel& label : scene.curves.Labels) DrawLabel(surface, scene, room, label, font);
}

}  // namespace orvik
