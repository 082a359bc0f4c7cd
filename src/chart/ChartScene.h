// What a drawing of the chart shows and where: handed to every step of the drawing.
#pragma once

#include <string_view>

#include "engine/CurveSet.h"
#include "engine/PlotGeometry.h"

namespace orvik {

struct ChartScene {
  const CurveSet& curves;
  std::string_view station;  // its name, the chart's title
  const PlotGeometry& geometry;
  const FrameLayout& layout;
  LayoutHeights heights;
  int thinLine = 1;   // width of grid lines and ticks, pixels
  int frameLine = 1;  // width of the frame's lines

  int PixelHeightOf(float height) const {
    return PixelHeight(height, geometry.Window(), geometry.Frame());
  }
};

}  // namespace orvik
