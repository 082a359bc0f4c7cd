// A small screen of pixels whose exclusive-or pens really flip them. Thin lines only.
#pragma once

#include <cstdlib>
#include <map>
#include <utility>

#include "platform/Surface.h"

namespace orvik::test {

class PixelSurface final : public Surface {
 public:
  std::map<std::pair<int, int>, Colour> pixels;  // those that are not black

  bool Supports(SurfaceFeature) const override { return true; }

  // From the first point up to the last one, which is left out.
  void Line(Point from, Point to, const Pen& pen) override {
    const int steps = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    for (int i = 0; i < steps; ++i) {
      Put(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps, pen);
    }
  }
  void Polyline(std::span<const Point> points, const Pen& pen) override {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) Line(points[i], points[i + 1], pen);
  }
  void FillArea(const Area& area, Colour colour) override {
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) Put(x, y, {colour});
    }
  }
  void FillPolygon(std::span<const Point>, Colour) override {}
  void WriteText(Point, std::string_view, const Font&, Colour) override {}
  Size MeasureText(std::string_view, const Font&) override { return {}; }
  void CopyPicture(const Picture&, const Area&) override {}
  void PushClip(const Area&) override {}
  void PopClip() override {}

 private:
  void Put(int x, int y, const Pen& pen) {
    const auto at = pixels.try_emplace({x, y}, 0).first;
    at->second = pen.mode == DrawMode::ExclusiveOr ? at->second ^ pen.colour : pen.colour;
    if (at->second == 0) pixels.erase(at);
  }
};

}  // namespace orvik::test
