#include "engine/FramedCurves.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeErrors.h"

namespace orvik {

FramedCurves::FramedCurves(std::shared_ptr<const CurveSet> curves, const PlotGeometry& geometry)
    : curves_(std::move(curves)), geometry_(geometry) {
  const std::vector<EfficiencyCurve>& all = curves_->Curves;
  regions_.reserve(all.size() - 1);
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    regions_.push_back(MakeRegion(all[i], all[i + 1], geometry_));
  }
}

std::optional<FramedCurves::Region> FramedCurves::MakeRegion(const EfficiencyCurve& A,
                                                             const EfficiencyCurve& B,
                                                             const PlotToFrame& mapping) {
  try {
    Region region;
    region.polygon = FindPolygonInPlotCoordinates(A, B, mapping);
    if (region.polygon.Count() == 0) return region;
    const auto [left, right] = std::ranges::minmax(region.polygon.X);
    const auto [top, bottom] = std::ranges::minmax(region.polygon.Y);
    region.left = left;
    region.right = right;
    region.top = top;
    region.bottom = bottom;
    return region;
  } catch (const OverflowError&) {
    return std::nullopt;  // only a question that comes so far is refused
  }
}

// Outside the vertices' extent every ray crosses the closed polygon an even number of times.
bool FramedCurves::IsBetweenCurves(std::size_t i, FramePixel pixel) const {
  const std::optional<Region>& region = regions_[i];
  if (!region) throw OverflowError();
  if (pixel.X < region->left || pixel.X > region->right || pixel.Y < region->top ||
      pixel.Y >= region->bottom) {
    return false;
  }
  return IsPointInsidePolygon(pixel.X, pixel.Y, region->polygon);
}

clsPlotWindow PlotWindowOf(const CurveSet& curves) {
  return {curves.VMin, curves.VMax, curves.RMin, curves.RMax};
}

PlotGeometry ReferenceGeometry(const CurveSet& curves) {
  const clsPlotWindow window = PlotWindowOf(curves);
  return {window, LayoutFrame(kReferenceWidth, kReferenceHeight, window, LayoutHeights()).Frame};
}

}  // namespace orvik
