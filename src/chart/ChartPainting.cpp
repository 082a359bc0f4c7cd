#include "chart/ChartPainting.h"

#include "chart/AxisNumbers.h"
#include "chart/ChartDrawing.h"
#include "platform/EdgeRing.h"

namespace orvik {
namespace {

constexpr int kBorder = 3;  // the two rings of the border, and one pixel inside them

}  // namespace

void PaintDesignChart(Surface& surface, const ChartScene& scene, Size control) {
  TextRoom room({kBorder, kBorder, control.width - kBorder, control.height - kBorder});
  DrawTitleBlock(surface, scene, room);
  DrawPlotFrame(surface, scene.layout.frame, scene.frameLine);
  DrawGridAndTicks(surface, scene);
  DrawHorizontalAxisText(surface, scene, room);
  DrawVerticalAxisText(surface, scene, room);
  DrawCurves(surface, scene);
  DrawCurveEnds(surface, scene);
  DrawLabels(surface, PlaceLabels(surface, scene, room));
}

void PaintBorder(Surface& surface, Size control) {
  const Area all{0, 0, control.width, control.height};
  DrawEdgeRing(surface, all, kButtonShadow, k3DHighlight);
  DrawEdgeRing(surface, Inside(all), k3DDarkShadow, k3DLight);
}

}  // namespace orvik
