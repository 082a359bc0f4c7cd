#include "engine/FramedCurves.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeErrors.h"

namespace orvik {

FramedCurves::FramedCurves(std::shared_ptr<const CurveSet> curves, const PlotGeometry& geometry)
    : curves_(std::move(curves)), geometry_(geometry) {
  const std::vector<EfficiencyCurve>& all = curves_->curves;
  regions_.reserve(all.size() - 1);
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    regions_.push_back(MakeRegion(all[i], all[i + 1], geometry_));
  }
}

std::optional<FramedCurves::Region> FramedCurves::MakeRegion(const EfficiencyCurve& A,
                                                             const EfficiencyCurve& B,
                                                             const PlotGeometry& geometry) {
  try {
    Region region;
    region.polygon = FindPolygonInPlotCoordinates(A, B, geometry);
    FindCrossings(region, geometry.Frame());
    return region;
  } catch (const OverflowError&) {
    return std::nullopt;  // only a question that comes so far is refused
  }
}

void FramedCurves::FindCrossings(Region& region, const clsRectangle_Integer& frame) {
  region.top = frame.Top;
  std::vector<std::vector<std::int16_t>> rows(
      static_cast<std::size_t>(std::max(0, frame.Bottom - frame.Top + 1)));
  const FramePolygon& polygon = region.polygon;
  for (std::size_t k = 0; k + 1 < polygon.Count(); ++k) {
    const int first = std::max<int>(std::min(polygon.y[k], polygon.y[k + 1]), frame.Top);
    const int end = std::min<int>(std::max(polygon.y[k], polygon.y[k + 1]), frame.Bottom + 1);
    for (int Y = first; Y < end; ++Y) {
      const auto last = LastCrossingColumn(static_cast<std::int16_t>(Y), polygon.x[k], polygon.y[k],
                                           polygon.x[k + 1], polygon.y[k + 1]);
      if (last) rows[static_cast<std::size_t>(Y - frame.Top)].push_back(*last);
    }
  }
  region.rowBegins.push_back(0);
  for (const auto& row : rows) {
    region.crossings.insert(region.crossings.end(), row.begin(), row.end());
    region.rowBegins.push_back(region.crossings.size());
  }
}

bool FramedCurves::IsBetweenCurves(std::size_t i, FramePixel pixel) const {
  const std::optional<Region>& region = regions_[i];
  if (!region) throw OverflowError();
  const int row = pixel.y - region->top;
  const bool isInFrame = 0 <= row && row + 1 < static_cast<int>(region->rowBegins.size());
  if (!isInFrame) return IsPointInsidePolygon(pixel.x, pixel.y, region->polygon);
  const auto at = static_cast<std::size_t>(row);
  bool isInside = false;
  for (std::size_t c = region->rowBegins[at]; c < region->rowBegins[at + 1]; ++c) {
    if (pixel.x <= region->crossings[c]) isInside = !isInside;
  }
  return isInside;
}

clsPlotWindow PlotWindowOf(const CurveSet& curves) {
  return {curves.VMin, curves.VMax, curves.RMin, curves.RMax};
}

PlotGeometry ReferenceGeometry(const CurveSet& curves) {
  const clsPlotWindow window = PlotWindowOf(curves);
  return {window, LayoutFrame(kReferenceWidth, kReferenceHeight, window, LayoutHeights()).frame};
}

}  // namespace orvik
