#include "chart/CurvePixels.h"

#include "base/RuntimeErrors.h"

namespace orvik {

std::optional<std::vector<Point>> CurvePixels(const EfficiencyCurve& curve,
                                              const PlotToFrame& mapping) {
  std::vector<Point> pixels;
  pixels.reserve(curve.V.size());
  try {
    for (std::size_t j = 0; j < curve.V.size(); ++j) {
      const Point pixel{mapping.XPlotToXFrame(curve.V[j]), mapping.YPlotToYFrame(curve.R[j])};
      if (pixels.empty() || pixels.back() != pixel) pixels.push_back(pixel);
    }
  } catch (const NumericError&) {
    return std::nullopt;
  }
  return pixels;
}

}  // namespace orvik
