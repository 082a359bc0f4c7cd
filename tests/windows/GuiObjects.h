// How many of the system's objects this process holds.
#pragma once

#include <ostream>

namespace orvik::test {

struct GuiObjects {
  int drawing = 0;  // pens, brushes, fonts, bitmaps, regions, device contexts
  int windows = 0;
  int menus = 0;

  static GuiObjects Count();

  bool operator==(const GuiObjects&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const GuiObjects& objects) {
  return out << objects.drawing << " drawing objects, " << objects.windows << " windows, "
             << objects.menus << " menus";
}

}  // namespace orvik::test
