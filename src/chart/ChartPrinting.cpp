#include "chart/ChartPrinting.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "base/NumberText.h"
#include "base/RuntimeErrors.h"
#include "chart/AxisNumbers.h"
#include "chart/ChartDrawing.h"
#include "chart/CurvePixels.h"
#include "chart/HotspotDrawing.h"
#include "design/DesignPoint.h"
#include "engine/FramedCurves.h"
#include "platform/Printer.h"

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
  for (const EfficiencyCurve& curve : scene.curves.curves) {
    if (auto pixels = CurvePixels(curve, scene.geometry)) lines.push_back(std::move(*pixels));
  }
  return lines;
}

// Texts stay in the target; the title's cell may begin with a blank part above it.
Area RoomFor(const clsRectangle_Integer& target, const FrameLayout& layout) {
  return {target.Left, std::min(target.Top, layout.title.Top), target.Right, target.Bottom};
}

// A rate that is found between two curves may lie above the frame, and then above the chart's place
// on the page, where the mark and its leaders are cut off as they are at the control's edge.
void PrintHotspot(Printer& printer, const clsRectangle_Integer& target, const ChartScene& scene,
                  const DesignPoint& point, std::span<const Area> captions) {
  Point centre;
  try {
    centre = {scene.geometry.XPlotToXFrame(point.V), scene.geometry.YPlotToYFrame(point.R)};
  } catch (const NumericError&) {
    return;  // far off
  }
  const int height = scene.PixelHeightOf(scene.heights.label);
  {
    const ClipScope clip(printer, {target.Left, target.Top, target.Right + 1, target.Bottom + 1});
    PrintHotspotMark(printer, centre, scene.layout.frame, height, scene.thinLine);
  }
  if (!point.HasE() || !IsReadable(height)) return;
  PrintHotspotText(printer, "E=" + ConvertToString(SingleE(point)) + "%", centre,
                   scene.layout.frame, height, captions, CurveLines(scene));
}

void Print(Printer& printer, const PrintedChart& chart, const clsPlotMetrics& metrics) {
  const LayoutHeights heights;
  const FrameLayout layout = LayoutPrintedFrame(metrics.Target, metrics.Window, heights);
  const PlotGeometry geometry(metrics.Window, metrics.Frame);
  const ChartScene scene{.curves = chart.curves,
                         .station = metrics.Title,
                         .geometry = geometry,
                         .layout = layout,
                         .heights = heights,
                         .thinLine = LineWidth(printer, kThinLinesPerInch),
                         .frameLine = LineWidth(printer, kFrameLinesPerInch)};
  TextRoom room(RoomFor(metrics.Target, layout));
  DrawTitleBlock(printer, scene, room);
  DrawPlotFrame(printer, layout.frame, scene.frameLine);
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
  if (chart.point.isShown) PrintHotspot(printer, metrics.Target, scene, chart.point, captions);
}

}  // namespace

clsPlotMetrics PrintMetrics(const PrintedChart& chart, const clsRectangle_Integer& target) {
  clsPlotMetrics metrics;
  metrics.Target = target;
  metrics.Window = PlotWindowOf(chart.curves);
  metrics.Title = chart.station;
  metrics.Frame = LayoutPrintedFrame(target, metrics.Window, LayoutHeights()).frame;
  return metrics;
}

double PrintedChartHeight(const CurveSet& curves, double width) {
  return PrintedHeight(width, PlotWindowOf(curves), LayoutHeights());
}

void PrintDesignChart(Printer& printer, const PrintedChart& chart,
                      const clsRectangle_Integer& target) {
  clsPlotMetrics metrics;
  try {
    metrics = PrintMetrics(chart, target);
  } catch (const NumericError&) {
    return;  // a rectangle at the end of the 16-bit range, with no place for the texts' bands
  }
  if (HasExtent(metrics.Frame)) Print(printer, chart, metrics);
}

}  // namespace orvik
