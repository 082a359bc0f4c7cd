// The region between two neighbouring curves as a polygon of whole pixels, and the test whether a
// pixel lies in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace orvik {

struct EfficiencyCurve;

// Turns chart coordinates into pixels. The chart provides it; see PlotGeometry for the rules.
class PlotToFrame {
 public:
  PlotToFrame() = default;
  PlotToFrame(const PlotToFrame&) = default;
  PlotToFrame& operator=(const PlotToFrame&) = default;
  virtual ~PlotToFrame() = default;

  virtual std::int16_t XPlotToXFrame(double x) const = 0;  // x = V, inches on the EIA
  virtual std::int16_t YPlotToYFrame(double y) const = 0;  // y = R, inches per day on the EIA
};

// Vertices in pixels, y down; element 0 is the first. Closed: the last vertex repeats the first.
struct FramePolygon {
  std::vector<std::int16_t> x;
  std::vector<std::int16_t> y;
  std::size_t Count() const { return x.size(); }
};

// Curve A's samples in order, then curve B's from last to first, then the first point again. A
// point on the same pixel as the one before it is left out. Empty when a curve has no samples; a
// single point stays alone, unclosed. Throws OverflowError where a sample lies beyond 16-bit
// pixels.
FramePolygon FindPolygonInPlotCoordinates(const EfficiencyCurve& A, const EfficiencyCurve& B,
                                          const PlotToFrame& mapping);

// The last column from which a horizontal ray to the right crosses the edge from (X1, Y1) to (X2,
// Y2) in row Y; nothing where no ray of this row does.
std::optional<std::int16_t> LastCrossingColumn(std::int16_t Y, std::int16_t X1, std::int16_t Y1,
                                               std::int16_t X2, std::int16_t Y2);

// Even-odd crossing test in whole pixels. Edges are half-open in y, so that a vertex counts once.
bool IsPointInsidePolygon(std::int16_t X, std::int16_t Y, const FramePolygon& polygon);

}  // namespace orvik
