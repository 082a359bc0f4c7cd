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
  struct Region {
    FramePolygon polygon;
    std::int16_t left = 0;  // of the vertices
    std::int16_t right = 0;
    std::int16_t top = 0;
    std::int16_t bottom = 0;
  };
  static std::optional<Region> MakeRegion(const EfficiencyCurve& A, const EfficiencyCurve& B,
                                          const PlotToFrame& mapping);

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
