#include "chart/ChartText.h"

#include <algorithm>
#include <utility>

namespace orvik {

Font ChartFont(int pixelHeight, int escapement) {
  Font font;
  font.face = "Arial";
  font.pixelHeight = pixelHeight;
  font.escapement = escapement;
  return font;
}

PlacedText PlaceLevel(std::string text, const Font& font, Size size, Point at) {
  return {std::move(text), font, at, {at.x, at.y, at.x + size.width, at.y + size.height}};
}

PlacedText PlaceUpwards(std::string text, const Font& font, Size size, Point corner) {
  const int bottom = corner.y + size.width;
  Font upwards = font;
  upwards.escapement = kReadsUpwards;
  return {std::move(text),
          upwards,
          {corner.x, bottom},
          {corner.x, corner.y, corner.x + size.height, bottom}};
}

Area CharactersOf(const PlacedText& text) {
  const Area& cell = text.area;
  return {cell.left, cell.top + (cell.bottom - cell.top) / 6, cell.right, cell.bottom};
}

bool Overlap(const Area& a, const Area& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool TextRoom::Has(const Area& area) const {
  return inside_.left <= area.left && area.right <= inside_.right && inside_.top <= area.top &&
         area.bottom <= inside_.bottom &&
         std::ranges::none_of(taken_, [&](const Area& taken) { return Overlap(area, taken); });
}

bool TextRoom::Write(Surface& surface, const PlacedText& text) {
  if (text.area.left >= text.area.right || !Has(text.area)) return false;
  surface.WriteText(text.at, text.text, text.font, kBlack);
  taken_.push_back(text.area);
  return true;
}

}  // namespace orvik
