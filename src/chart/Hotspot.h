// The hotspot: the design point that the user places on the chart, and the box drawn round it.
#pragma once

#include <cstdint>

#include "chart/PlotGeometry.h"

namespace orvik {

// V (inches on the EIA) and R (inches per day on the EIA) are the master copy of the position; the
// pixel and the box follow from them.
class Hotspot {
 public:
  static constexpr std::int16_t kHalfSize = 7;  // pixels that the box reaches each way

  double V() const { return V_; }
  double R() const { return R_; }
  std::int16_t X() const { return X_; }
  std::int16_t Y() const { return Y_; }
  const clsRectangle_Integer& Box() const { return box_; }

  // Puts the hotspot at chart coordinates. Throws OverflowError where the box would leave the
  // 16-bit pixels; the hotspot then stays where it was.
  void PlaceAt(double V, double R, const PlotGeometry& geometry);

  // Moves the hotspot by whole pixels. Only a coordinate that moved is computed anew from its
  // pixel; the other keeps its exact value. Requires a frame with an extent.
  void MoveBy(int dX, int dY, const PlotGeometry& geometry);

 private:
  void PutCentre(std::int16_t X, std::int16_t Y);

  double V_ = 0;
  double R_ = 0;
  std::int16_t X_ = 0;
  std::int16_t Y_ = 0;
  clsRectangle_Integer box_;
};

}  // namespace orvik
