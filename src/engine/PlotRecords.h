// The chart's records of limits, rectangles and margins. Field order matters: rectangles are Left,
// Right, Top, Bottom.
#pragma once

#include <cstdint>
#include <string>

namespace orvik {

// Their fields have the names of the suite.
// NOLINTBEGIN(readability-identifier-naming)

// The part of the chart's plane that the frame shows.
struct clsPlotWindow {
  double XMin = 0;  // V at the left edge, inches on the EIA
  double XMax = 0;  // V at the right edge
  double YMin = 0;  // R at the bottom edge, inches per day on the EIA
  double YMax = 0;  // R at the top edge
};

// Pixels of a drawing surface, y down; all four edges belong to the rectangle.
struct clsRectangle_Integer {
  std::int16_t Left = 0;
  std::int16_t Right = 0;
  std::int16_t Top = 0;
  std::int16_t Bottom = 0;
  bool operator==(const clsRectangle_Integer&) const = default;
};

// Positions on a page in the printer's units, y down.
struct clsRectangle_Single {
  float Left = 0;
  float Right = 0;
  float Top = 0;
  float Bottom = 0;
  bool operator==(const clsRectangle_Single&) const = default;
};

// Distances from the edges of a page, in the printer's units.
struct clsMargins {
  float Left = 0;
  float Right = 0;
  float Top = 0;
  float Bottom = 0;
  bool operator==(const clsMargins&) const = default;
};

// The measures of one rendering target: where the chart is drawn on it, and what it shows.
struct clsPlotMetrics {
  clsRectangle_Integer Target;  // the area given for the chart
  clsRectangle_Integer Frame;   // within it
  clsPlotWindow Window;
  std::string Title;  // the station's name
};

// NOLINTEND(readability-identifier-naming)

}  // namespace orvik
