// Text on the chart: its font, the area that it takes, and the room that is left beside the others.
#pragma once

#include <string>
#include <vector>

#include "platform/Surface.h"

namespace orvik {

inline constexpr int kReadsUpwards = 900;  // tenths of a degree

// Text this high or lower is not drawn.
inline constexpr int kUnreadableHeight = 5;  // pixels

inline bool IsReadable(int pixelHeight) {
  return pixelHeight > kUnreadableHeight;
}

// The chart's face at this height.
Font ChartFont(int pixelHeight, int escapement = 0);

// A text, where it is to be written and the area that it covers there.
struct PlacedText {
  std::string text;
  Font font;
  Point at;
  Area area;
};

// `at` is the upper left corner of the level text.
PlacedText PlaceLevel(std::string text, const Font& font, Size size, Point at);

// `corner` is the upper left corner of the area that the upright text covers.
PlacedText PlaceUpwards(std::string text, const Font& font, Size size, Point corner);

// The paper that a level text covers; above its characters a cell is blank.
Area CharactersOf(const PlacedText& text);

// Nothing where two areas share no pixel.
bool Overlap(const Area& a, const Area& b);

// Keeps texts from leaving the control and from running into each other: one that would do either
// is not written.
class TextRoom {
 public:
  explicit TextRoom(const Area& inside) : inside_(inside) {}

  bool Has(const Area& area) const;

  // True where it was written.
  bool Write(Surface& surface, const PlacedText& text);

 private:
  Area inside_;
  std::vector<Area> taken_;
};

}  // namespace orvik
