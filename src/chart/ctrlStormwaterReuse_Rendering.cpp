// The control's picture, step by step.
#include "chart/AxisNumbers.h"
#include "chart/ChartColours.h"
#include "chart/ChartDrawing.h"
#include "chart/HotspotDrawing.h"
#include "chart/ctrlStormwaterReuse.h"
#include "platform/EdgeRing.h"

namespace orvik {
namespace {

constexpr int kPenWidth = 1;         // pixels, of the frame
constexpr int kHotspotPenWidth = 1;  // pixels
constexpr int kBorder = 3;           // the two rings of the border, and one pixel inside them

}  // namespace

void ctrlStormwaterReuse::Paint(Surface& surface) {
  highlightShown_ = false;
  surface.FillArea({0, 0, width_, height_}, kPaper);
  if (!interactive_) PaintBackground(surface);
  if (userMode_ && isLoaded_) PaintChart(surface);
  DrawBorder(surface);
}

void ctrlStormwaterReuse::PaintBackground(Surface& surface) const {
  if (backgroundPicture_) surface.CopyPicture(*backgroundPicture_, {0, 0, width_, height_});
}

void ctrlStormwaterReuse::PaintChart(Surface& surface) const {
  TextRoom room({kBorder, kBorder, width_ - kBorder, height_ - kBorder});
  const ChartScene scene = Scene();
  DrawTitleBlock_Screen(surface, room);
  DrawPlotFrame_Screen(surface);
  DrawGridAndTicks(surface, scene);
  DrawHorizontalAxisText(surface, scene, room);
  DrawVerticalAxisText(surface, scene, room);
  DrawCurves_Screen(surface);
  DrawCurveEnds_Screen(surface);
  DrawLabels_Screen(surface, room);
  DrawHotspot_Screen(surface);
}

ChartScene ctrlStormwaterReuse::Scene() const {
  return {.curves = curves_,
          .station = stationName_,
          .geometry = geometry_,
          .layout = layout_,
          .heights = layoutHeights_,
          .frameLine = kPenWidth};
}

void ctrlStormwaterReuse::DrawTitleBlock_Screen(Surface& surface, TextRoom& room) const {
  DrawTitleBlock(surface, Scene(), room);
}

void ctrlStormwaterReuse::DrawPlotFrame_Screen(Surface& surface) const {
  DrawPlotFrame(surface, layout_.Frame, kPenWidth);
}

void ctrlStormwaterReuse::DrawCurves_Screen(Surface& surface) const {
  DrawCurves(surface, Scene());
}

void ctrlStormwaterReuse::DrawCurveEnds_Screen(Surface& surface) const {
  DrawCurveEnds(surface, Scene());
}

void ctrlStormwaterReuse::DrawLabels_Screen(Surface& surface, const TextRoom& room) const {
  DrawLabels(surface, PlaceLabels(surface, Scene(), room));
}

void ctrlStormwaterReuse::DrawHotspot_Screen(Surface& surface) const {
  if (IsHotspotShown()) DrawHotspot(surface, hotspot_, geometry_.Frame(), kHotspotPenWidth);
}

void ctrlStormwaterReuse::DrawBorder(Surface& surface) const {
  const Area all{0, 0, width_, height_};
  DrawEdgeRing(surface, all, kButtonShadow, k3DHighlight);
  DrawEdgeRing(surface, Inside(all), k3DDarkShadow, k3DLight);
}

}  // namespace orvik
