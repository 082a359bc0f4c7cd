#include "engine/CurvePolygon.h"

#include <algorithm>

namespace orvik {
namespace {

void Append(FramePolygon& polygon, std::int16_t X, std::int16_t Y) {
  if (polygon.Count() > 0 && polygon.X.back() == X && polygon.Y.back() == Y) return;
  polygon.X.push_back(X);
  polygon.Y.push_back(Y);
}

// True when the horizontal ray to the right of (X, Y) crosses the edge from (X1, Y1) to (X2, Y2).
bool CrossesEdge(std::int16_t X, std::int16_t Y, std::int16_t X1, std::int16_t Y1, std::int16_t X2,
                 std::int16_t Y2) {
  if (Y1 == Y2 || Y < std::min(Y1, Y2) || Y >= std::max(Y1, Y2) || X > std::max(X1, X2)) {
    return false;
  }
  if (X1 == X2) return true;  // upright, and X is not to its right
  // Where the edge crosses row Y, in double precision: the product exceeds 16 bits.
  const double rise = static_cast<double>(Y) - Y1;
  const double crossing =
      rise * (static_cast<double>(X2) - X1) / (static_cast<double>(Y2) - Y1) + X1;
  return X <= crossing;
}

}  // namespace

FramePolygon FindPolygonInPlotCoordinates(const EfficiencyCurve& A, const EfficiencyCurve& B,
                                          const PlotToFrame& mapping) {
  FramePolygon polygon;
  if (A.V.empty() || B.V.empty()) return polygon;
  polygon.X.reserve(A.V.size() + B.V.size() + 1);
  polygon.Y.reserve(A.V.size() + B.V.size() + 1);
  const auto appendSample = [&](const EfficiencyCurve& curve, std::size_t j) {
    Append(polygon, mapping.XPlotToXFrame(curve.V[j]), mapping.YPlotToYFrame(curve.R[j]));
  };
  for (std::size_t j = 0; j < A.V.size(); ++j) appendSample(A, j);
  for (std::size_t j = B.V.size(); j-- > 0;) appendSample(B, j);
  if (polygon.Count() >= 2) {
    polygon.X.push_back(polygon.X.front());
    polygon.Y.push_back(polygon.Y.front());
  }
  return polygon;
}

bool IsPointInsidePolygon(std::int16_t X, std::int16_t Y, const FramePolygon& polygon) {
  bool inside = false;
  for (std::size_t k = 0; k + 1 < polygon.Count(); ++k) {
    if (CrossesEdge(X, Y, polygon.X[k], polygon.Y[k], polygon.X[k + 1], polygon.Y[k + 1])) {
      inside = !inside;
    }
  }
  return inside;
}

}  // namespace orvik
