// The marks on a screen, as pixels: exclusive-or pens really flip them; what is drawn otherwise
// lies beneath and is not kept. Clearing the screen (filling an area from its corner on) takes the
// marks away. Thin lines only.
#pragma once

#include <cstdlib>
#include <map>
#include <utility>

#include "platform/Surface.h"

namespace orvik::test {

class PixelSurface final : public Surface {
 public:
  std::map<std::pair<int, int>, Colour> pixels;  // those that are flipped

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
  void FillArea(const Area& area, Colour) override {
    if (area.left == 0 && area.top == 0) pixels.clear();
  }
  void FillPolygon(std::span<const Point>, Colour) override {}
  void WriteText(Point, std::string_view, const Font&, Colour) override {}
  Size MeasureText(std::string_view, const Font&) override { return {}; }
  void CopyPicture(const Picture&, const Area&) override {}
  void PushClip(const Area&) override {}
  void PopClip() override {}

 private:
  void Put(int x, int y, const Pen& pen) {
    if (pen.mode != DrawMode::ExclusiveOr) return;
    const auto at = pixels.try_emplace({x, y}, 0).first;
    at->second ^= pen.colour;
    if (at->second == 0) pixels.erase(at);
  }
};

}  // namespace orvik::test
