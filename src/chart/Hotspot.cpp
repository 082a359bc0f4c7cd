#include "chart/Hotspot.h"

#include "base/Rounding.h"

namespace orvik {

void Hotspot::PlaceAt(double V, double R, const PlotGeometry& geometry) {
  PutCentre(geometry.XPlotToXFrame(V), geometry.YPlotToYFrame(R));
  V_ = V;
  R_ = R;
}

void Hotspot::MoveBy(int dX, int dY, const PlotGeometry& geometry) {
  PutCentre(ToInt16(X_ + dX), ToInt16(Y_ + dY));
  if (dX != 0) V_ = geometry.XFrameToXPlot(X_);
  if (dY != 0) R_ = geometry.YFrameToYPlot(Y_);
}

void Hotspot::PutCentre(std::int16_t X, std::int16_t Y) {
  box_ = {ToInt16(X - kHalfSize), ToInt16(X + kHalfSize), ToInt16(Y - kHalfSize),
          ToInt16(Y + kHalfSize)};
  X_ = X;
  Y_ = Y;
}

}  // namespace orvik
