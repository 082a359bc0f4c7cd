// One ring of the 3-D edge of a drawn control, lit from the upper left.
#pragma once

#include "platform/Surface.h"

namespace orvik {

// The four one-pixel lines just inside the area: top, left, bottom, right. The lower left and upper
// right corners belong to the bottom and right lines. An area without pixels gets none.
inline void DrawEdgeRing(Surface& surface, const Area& area, Colour topAndLeft,
                         Colour bottomAndRight) {
  if (area.left >= area.right || area.top >= area.bottom) return;
  const int right = area.right - 1;
  const int bottom = area.bottom - 1;
  surface.Line({area.left, area.top}, {right, area.top}, {topAndLeft});
  surface.Line({area.left, area.top}, {area.left, bottom}, {topAndLeft});
  surface.Line({area.left, bottom}, {right, bottom}, {bottomAndRight});
  surface.Line({right, area.top}, {right, bottom + 1}, {bottomAndRight});
}

// The area without its outermost ring of pixels.
inline Area Inside(const Area& area) {
  return {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1};
}

}  // namespace orvik
