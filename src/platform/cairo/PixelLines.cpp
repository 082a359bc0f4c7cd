#include "platform/cairo/PixelLines.h"

#include <algorithm>
#include <cstdlib>

namespace orvik {
namespace {

int Before(int penWidth) {
  return (penWidth - 1) / 2;
}

// A square of the pen's width round the pixel.
void PutPen(std::vector<Point>& pixels, Point centre, int penWidth) {
  const int left = centre.x - Before(penWidth);
  const int top = centre.y - Before(penWidth);
  for (int y = top; y < top + penWidth; ++y) {
    for (int x = left; x < left + penWidth; ++x) pixels.push_back({x, y});
  }
}

// The whole number nearest to i * delta / steps, for 0 <= i <= steps.
int Share(long long i, long long delta, long long steps) {
  const long long twice = 2 * i * std::abs(delta) + steps;
  const long long share = twice / (2 * steps);
  return static_cast<int>(delta < 0 ? -share : share);
}

void PutSegment(std::vector<Point>& pixels, Point from, Point to, int penWidth) {
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const int steps = std::max(std::abs(dx), std::abs(dy));
  for (int i = 0; i < steps; ++i) {
    PutPen(pixels, {from.x + Share(i, dx, steps), from.y + Share(i, dy, steps)}, penWidth);
  }
}

bool ByRows(const Point& a, const Point& b) {
  return a.y != b.y ? a.y < b.y : a.x < b.x;
}

}  // namespace

std::vector<Point> PixelsOfLine(std::span<const Point> points, int penWidth) {
  std::vector<Point> pixels;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    PutSegment(pixels, points[i], points[i + 1], penWidth);
  }
  std::ranges::sort(pixels, ByRows);
  pixels.erase(std::unique(pixels.begin(), pixels.end()), pixels.end());
  return pixels;
}

std::optional<Area> AreaOfStraightLine(Point from, Point to, int penWidth) {
  const int before = Before(penWidth);
  if (from.y == to.y) {
    const int left = from.x <= to.x ? from.x : to.x + 1;
    const int top = from.y - before;
    return Area{left, top, left + std::abs(to.x - from.x), top + penWidth};
  }
  if (from.x == to.x) {
    const int top = from.y <= to.y ? from.y : to.y + 1;
    const int left = from.x - before;
    return Area{left, top, left + penWidth, top + std::abs(to.y - from.y)};
  }
  return std::nullopt;
}

bool AreLevelOrUpright(std::span<const Point> points) {
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    if (points[i].x != points[i + 1].x && points[i].y != points[i + 1].y) return false;
  }
  return true;
}

}  // namespace orvik
