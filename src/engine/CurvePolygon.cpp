#include "engine/CurvePolygon.h"

#include <algorithm>
#include <cmath>

#include "engine/EfficiencyCurve.h"

namespace orvik {
namespace {

void Append(FramePolygon& polygon, std::int16_t X, std::int16_t Y) {
  if (polygon.Count() > 0 && polygon.x.back() == X && polygon.y.back() == Y) return;
  polygon.x.push_back(X);
  polygon.y.push_back(Y);
}

}  // namespace

FramePolygon FindPolygonInPlotCoordinates(const EfficiencyCurve& A, const EfficiencyCurve& B,
                                          const PlotToFrame& mapping) {
  FramePolygon polygon;
  if (A.V.empty() || B.V.empty()) return polygon;
  polygon.x.reserve(A.V.size() + B.V.size() + 1);
  polygon.y.reserve(A.V.size() + B.V.size() + 1);
  const auto appendSample = [&](const EfficiencyCurve& curve, std::size_t j) {
    Append(polygon, mapping.XPlotToXFrame(curve.V[j]), mapping.YPlotToYFrame(curve.R[j]));
  };
  for (std::size_t j = 0; j < A.V.size(); ++j) appendSample(A, j);
  for (std::size_t j = B.V.size(); j-- > 0;) appendSample(B, j);
  if (polygon.Count() >= 2) {
    polygon.x.push_back(polygon.x.front());
    polygon.y.push_back(polygon.y.front());
  }
  return polygon;
}

std::optional<std::int16_t> LastCrossingColumn(std::int16_t Y, std::int16_t X1, std::int16_t Y1,
                                               std::int16_t X2, std::int16_t Y2) {
  if (Y1 == Y2 || Y < std::min(Y1, Y2) || Y >= std::max(Y1, Y2)) return std::nullopt;
  if (X1 == X2) return X1;
  const double rise = static_cast<double>(Y) - Y1;
  const double crossing =
      rise * (static_cast<double>(X2) - X1) / (static_cast<double>(Y2) - Y1) + X1;
  // A whole column is not right of the crossing where it is not right of the crossing's own column.
  const double column = std::floor(crossing);
  return static_cast<std::int16_t>(std::min(column, static_cast<double>(std::max(X1, X2))));
}

bool IsPointInsidePolygon(std::int16_t X, std::int16_t Y, const FramePolygon& polygon) {
  bool inside = false;
  for (std::size_t k = 0; k + 1 < polygon.Count(); ++k) {
    const auto last =
        LastCrossingColumn(Y, polygon.x[k], polygon.y[k], polygon.x[k + 1], polygon.y[k + 1]);
    if (last && X <= *last) inside = !inside;
  }
  return inside;
}

}  // namespace orvik
