// The drawing seam: what the module's drawn controls and printed pages ask of a screen, a picture
// file or a page.
//
// Whole pixels, y down. No state: every call carries its pen, font and colour; only clips nest.
// Supports says what a back end cannot do; nothing throws for it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Colour.h"

namespace orvik {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

// Right and bottom are the first column and row outside.
struct Area {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const Area&) const = default;
};

// What both areas cover; right is at or before left, or bottom at or above top, where that is
// nothing.
constexpr Area Intersection(const Area& a, const Area& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

enum class DrawMode : std::uint8_t {
  Copy,
  ExclusiveOr,  // the colour's bits flip those of the surface: drawing twice erases
};

// What lines are drawn with. A wide line ends flat at its first and last point. Where slanting
// lines meet, the corner is round or bevelled, and that of level and upright lines may be left
// open, whichever the back end does best: at our widths of a few pixels the difference does not
// show, and no caller may rely on it. In ExclusiveOr mode a wide pen may be square instead, and
// reach half its width beyond the ends.
struct Pen {
  Colour colour = kBlack;
  int width = 1;  // pixels, centred on the line
  DrawMode mode = DrawMode::Copy;
};

struct Font {
  std::string face = "Arial";
  int pixelHeight = 0;  // of the characters, without internal leading
  int escapement = 0;   // tenths of a degree, counter-clockwise; 900 reads bottom to top
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
};

// Pixels row by row from the top, 0x00RRGGBB (not in the byte order of Colour); as many as the size
// says.
struct Picture {
  Size size;
  std::vector<std::uint32_t> pixels;
};

inline bool IsConsistent(const Picture& picture) {
  const auto [width, height] = picture.size;
  return width >= 0 && height >= 0 &&
         picture.pixels.size() ==
             static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

enum class SurfaceFeature : std::uint8_t {
  ExclusiveOr,  // without it, pens draw in Copy mode
};

class Surface {
 public:
  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface() = default;

  virtual bool Supports(SurfaceFeature feature) const = 0;

  // From the first point up to the last, whose own pixel is not drawn: of a closed figure of thin
  // lines each pixel is drawn once, also its corners, and an exclusive-or pen leaves no holes
  // there.
  virtual void Line(Point from, Point to, const Pen& pen) = 0;
  virtual void Polyline(std::span<const Point> points, const Pen& pen) = 0;

  virtual void FillArea(const Area& area, Colour colour) = 0;
  virtual void FillPolygon(std::span<const Point> corners, Colour colour) = 0;  // closes itself

  // Writes UTF-8 text without a background; `at` is the upper left corner of its first character's
  // cell, turned with the text. A font that cannot be made leaves the text out.
  virtual void WriteText(Point at, std::string_view text, const Font& font, Colour colour) = 0;

  // The extent of the text before it is turned; zero where the font cannot be made.
  virtual Size MeasureText(std::string_view text, const Font& font) = 0;

  // Copies as much of the picture as fits, unscaled, from its upper left corner into the area.
  // Throws std::invalid_argument for pixels that are more or fewer than the picture's size says.
  virtual void CopyPicture(const Picture& picture, const Area& area) = 0;

  // Until the matching PopClip, drawing has an effect only in this area and in those pushed before.
  virtual void PushClip(const Area& area) = 0;
  virtual void PopClip() = 0;
};

// Clips while it lives.
class ClipScope {
 public:
  ClipScope(Surface& surface, const Area& area) : surface_(surface) { surface_.PushClip(area); }
  ~ClipScope() { surface_.PopClip(); }
  ClipScope(const ClipScope&) = delete;
  ClipScope& operator=(const ClipScope&) = delete;

 private:
  Surface& surface_;
};

}  // namespace orvik
