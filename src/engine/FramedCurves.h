// The design curves of a station as they lie in a frame of pixels: what a design question is asked
// of.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "engine/CurvePolygon.h"
#include "engine/CurveSet.h"
#include "engine/FramePixel.h"
#include "engine/PlotGeometry.h"

namespace orvik {

// Whether a point lies between two curves is asked of whole pixels, so near a curve the answer
// depends on the frame. Made once for a curve set and a frame; nothing changes it afterwards, so
// that many threads may ask.
class FramedCurves {
 public:
  // `curves` is not null and has at least one curve.
  FramedCurves(std::shared_ptr<const CurveSet> curves, const PlotGeometry& geometry);

  const CurveSet& Curves() const { return *curves_; }
  const std::shared_ptr<const CurveSet>& Shared() const { return curves_; }
  const PlotGeometry& Geometry() const { return geometry_; }

  // True when the pixel lies in the region between curve i (from 0) and the next. Throws
  // OverflowError where a sample of the two lies beyond 16-bit pixels.
  bool IsBetweenCurves(std::size_t i, FramePixel pixel) const;

 private:
  // A region between two curves, row by row of the frame: the columns at which a ray to the right
  // stops to cross one more of the polygon's edges. A pixel lies inside where an odd number of them
  // is not left of it.
  struct Region {
    FramePolygon polygon;                 // for pixels outside of the frame's rows
    std::int16_t top = 0;                 // the first row
    std::vector<std::size_t> rowBegins;   // in `crossings`; one more than rows
    std::vector<std::int16_t> crossings;  // row by row
  };
  static std::optional<Region> MakeRegion(const EfficiencyCurve& A, const EfficiencyCurve& B,
                                          const PlotGeometry& geometry);
  static void FindCrossings(Region& region, const clsRectangle_Integer& frame);

  std::shared_ptr<const CurveSet> curves_;
  PlotGeometry geometry_;
  std::vector<std::optional<Region>> regions_;  // none where a sample lies beyond the pixels
};

// The part of the chart's plane that shows the curves.
clsPlotWindow PlotWindowOf(const CurveSet& curves);

// The frame without a window: that of a chart of 960 x 640 pixels. The same question gets the same
// answer on every machine there.
PlotGeometry ReferenceGeometry(const CurveSet& curves);

}  // namespace orvik
