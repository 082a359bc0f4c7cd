#include "chart/CurvePixels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/RuntimeErrors.h"

namespace orvik {
namespace {

// Shares of a segment, 0 at its first point and 1 at its last.
struct Span {
  double begin;
  double end;
};

// Narrows the span to where from + t * delta lies between the limits.
void Narrow(Span& span, double from, double delta, double least, double most) {
  if (delta == 0) {
    if (from < least || most < from) span.end = span.begin;
    return;
  }
  const double a = (least - from) / delta;
  const double b = (most - from) / delta;
  span = {std::max(span.begin, std::min(a, b)), std::min(span.end, std::max(a, b))};
}

// Where the segment lies in the areas, by their beginnings.
std::vector<Span> SpansInside(Point from, Point to, std::span<const Area> areas) {
  std::vector<Span> spans;
  for (const Area& area : areas) {
    Span span{0, 1};
    Narrow(span, from.x, to.x - from.x, area.left, area.right);
    Narrow(span, from.y, to.y - from.y, area.top, area.bottom);
    if (span.begin < span.end) spans.push_back(span);
  }
  std::ranges::sort(spans, {}, &Span::begin);
  return spans;
}

Point Along(Point from, Point to, double share) {
  return {static_cast<int>(std::lround(from.x + share * (to.x - from.x))),
          static_cast<int>(std::lround(from.y + share * (to.y - from.y)))};
}

// Grows the last piece, or begins one.
class Pieces {
 public:
  void Add(Point from, Point to) {
    if (isBroken_) pieces_.push_back({from});
    isBroken_ = false;
    if (pieces_.back().back() != to) pieces_.back().push_back(to);
  }
  void Break() { isBroken_ = true; }
  std::vector<std::vector<Point>> Take() { return std::move(pieces_); }

 private:
  std::vector<std::vector<Point>> pieces_;
  bool isBroken_ = true;
};

}  // namespace

Area CurveArea(const clsRectangle_Integer& frame) {
  return {frame.Left, frame.Top, frame.Right + 1, frame.Bottom + 1};
}

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

std::vector<std::vector<Point>> PiecesOutside(std::span<const Point> line,
                                              std::span<const Area> areas) {
  Pieces pieces;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const Point from = line[i];
    const Point to = line[i + 1];
    double done = 0;
    for (const Span& inside : SpansInside(from, to, areas)) {
      if (inside.begin > done) pieces.Add(Along(from, to, done), Along(from, to, inside.begin));
      pieces.Break();
      done = std::max(done, inside.end);
    }
    if (done < 1) pieces.Add(Along(from, to, done), to);
  }
  return pieces.Take();
}

bool Crosses(std::span<const Point> line, const Area& area) {
  const auto pieces = PiecesOutside(line, {&area, 1});
  return pieces.size() != 1 || !std::ranges::equal(pieces.front(), line);
}

}  // namespace orvik
