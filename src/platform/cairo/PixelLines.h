// The pixels of straight lines, one by one.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/Surface.h"

namespace orvik {

// The pixels of a line of points drawn with a square pen of this width, each of them once; the last
// point's own pixel is not among them.
std::vector<Point> PixelsOfLine(std::span<const Point> points, int penWidth);

// The pixels of a level or upright line, as one area; nothing for any other line. Its first point's
// pixel belongs to it, its last one's does not.
std::optional<Area> AreaOfStraightLine(Point from, Point to, int penWidth);

// Whether every line between two neighbours is level or upright.
bool AreLevelOrUpright(std::span<const Point> points);

}  // namespace orvik
