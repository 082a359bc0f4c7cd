// The chart on a printer's page.
#include <algorithm>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "chart/AxisNumbers.h"
#include "chart/ChartColours.h"
#include "chart/ChartDrawing.h"
#include "chart/CurvePixels.h"
#include "chart/HotspotDrawing.h"
#include "chart/ctrlStormwaterReuse.h"

namespace orvik {
namespace {

constexpr int kThinLinesPerInch = 240;  // the width of grid lines, ticks and leaders
constexpr int kFrameLinesPerInch = 120;

int LineWidth(const Printer& printer, int perInch) {
  return std::max(1, printer.Resolution() / perInch);
}

bool HasExtent(const clsRectangle_Integer& rectangle) {
  return rectangle.Left < rectangle.Right && rectangle.Top < rectangle.Bottom;
}

// Their pixels, for what must stay clear of them.
std::vector<std::vector<Point>> CurveLines(const ChartScene& scene) {
  std::vector<std::vector<Point>> lines;
  for (const EfficiencyCurve& curve : scene.curves.Curves) {
    if (auto pixels = CurvePixels(curve, scene.geometry)) lines.push_back(std::move(*pixels));
  }
  return lines;
}

// Texts stay in the target; the title's cell may begin with a blank part above it.
Area RoomFor(const clsPlotMetrics& metrics, const FrameLayout& layout) {
  const clsRectangle_Integer& target = metrics.Target;
  return {target.Left, std::min(target.Top, layout.Title.Top), target.Right, target.Bottom};
}

}  // namespace

clsPlotMetrics ctrlStormwaterReuse::PrintMetrics(std::int16_t Left, std::int16_t Top,
                                                 std::int16_t Right, std::int16_t Bottom) const {
  clsPlotMetrics metrics;
  metrics.Target = {Left, Right, Top, Bottom};
  metrics.Window = Window();
  metrics.Title = stationName_;
  metrics.Frame = LayoutPrintedFrame(metrics.Target, metrics.Window, layoutHeights_).Frame;
  return metrics;
}

double ctrlStormwaterReuse::PrintedHeight(double width) const {
  return orvik::PrintedHeight(width, Window(), layoutHeights_);
}

void ctrlStormwaterReuse::PrintDesignChart(Printer& printer, std::int16_t Left, std::int16_t Top,
                                           std::int16_t Right, std::int16_t Bottom) const {
  if (!isLoaded_) return;
  clsPlotMetrics metrics;
  try {
    metrics = PrintMetrics(Left, Top, Right, Bottom);
  } catch (const NumericError&) {
    return;  // a rectangle at the end of the 16-bit range, with no place for the texts' bands
  }
  if (HasExtent(metrics.Frame)) PrintChart(printer, metrics);
}

void ctrlStormwaterReuse::PrintChart(Printer& printer, const clsPlotMetrics& metrics) const {
  const FrameLayout layout = LayoutPrintedFrame(metrics.Target, metrics.Window, layoutHeights_);
  const PlotGeometry geometry(metrics.Window, metrics.Frame);
  const ChartScene scene{.curves = curves_,
                         .station = metrics.Title,
                         .geometry = geometry,
                         .layout = layout,
                         .heights = layoutHeights_,
                         .thinLine = LineWidth(printer, kThinLinesPerInch),
                         .frameLine = LineWidth(printer, kFrameLinesPerInch)};
  TextRoom room(RoomFor(metrics, layout));
  DrawTitleBlock(printer, scene, room);
  DrawPlotFrame(printer, layout.Frame, scene.frameLine);
  DrawGridAndTicks(printer, scene);
  DrawHorizontalAxisText(printer, scene, room);
  DrawVerticalAxisText(printer, scene, room);
  // The curves come after their captions and leave them free.
  const std::vector<PlacedText> labels = PlaceLabels(printer, scene, room);
  DrawLabels(printer, labels);
  std::vector<Area> captions;
  captions.reserve(labels.size());
  for (const PlacedText& label : labels) captions.push_back(CharactersOf(label));
  DrawCurves(printer, scene, captions);
  DrawCurveEnds(printer, scene);
  if (hotspotVisible_) PrintHotspot(printer, metrics.Target, scene, captions);
}

// A rate that is found between two curves may lie above the frame, and then above the chart's place
// on the page, where the mark and its leaders are cut off as they are at the control's edge.
void ctrlStormwaterReuse::PrintHotspot(Printer& printer, const clsRectangle_Integer& target,
                                       const ChartScene& scene,
                                       std::span<const Area> captions) const {
  Point centre;
  try {
    centre = {scene.geometry.XPlotToXFrame(hotspot_.V()),
              scene.geometry.YPlotToYFrame(hotspot_.R())};
  } catch (const NumericError&) {
    return;  // far off
  }
  const int height = scene.PixelHeightOf(scene.heights.Label);
  {
    const ClipScope clip(printer, {target.Left, target.Top, target.Right + 1, target.Bottom + 1});
    PrintHotspotMark(printer, centre, scene.layout.Frame, height, scene.thinLine);
  }
  if (!isEDefined_ || !IsReadable(height)) return;
  PrintHotspotText(printer, "E=" + ConvertToString(ToSingle(E_)) + "%", centre, scene.layout.Frame,
                   height, captions, CurveLines(scene));
}

}  // namespace orvik
