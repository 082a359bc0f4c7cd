#include "engine/FramePixel.h"

#include "base/Rounding.h"

namespace orvik {

FramePixel WithRoomForMark(FramePixel pixel) {
  for (const int coordinate : {pixel.x, pixel.y}) {
    ToInt16(coordinate - kMarkReach);
    ToInt16(coordinate + kMarkReach);
  }
  return pixel;
}

FramePixel PixelOfMark(double V, double R, const PlotToFrame& mapping) {
  return WithRoomForMark({mapping.XPlotToXFrame(V), mapping.YPlotToYFrame(R)});
}

}  // namespace orvik
