// A surface that writes its calls as text, for tests to compare exactly.
//
//   line 3,4 to 10,4 colour 0xFFFF00 width 1 xor
//   polyline 1,2 3,4 5,6 colour 0x000000 width 1 copy
//   fill 0,0 to 80,24 colour 0x8000000F
//   fill polygon 1,2 3,4 5,6 colour 0x0000FF
//   text 3,4 "abc" Arial 12 bold angle 900 colour 0x000000
//   picture 20x10 in 0,0 to 80,24
//   clip 0,0 to 80,24
//   unclip
//
// Absent styles and an angle of 0 are not written. Measuring draws nothing and writes nothing.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Surface.h"

namespace orvik {

// "Arial 12 bold angle 900", as the calls have it.
std::string TextOfFont(const Font& font);

class RecordingSurface final : public Surface {
 public:
  // The calls since the last Take, one line each.
  const std::vector<std::string>& Calls() const { return calls_; }
  void Note(std::string call) { calls_.push_back(std::move(call)); }  // of what draws on it
  std::vector<std::string> Take() { return std::exchange(calls_, {}); }

  // What Supports answers from now on; at first everything is supported.
  void Support(SurfaceFeature feature, bool supported);

  bool Supports(SurfaceFeature feature) const override;
  void Line(Point from, Point to, const Pen& pen) override;
  void Polyline(std::span<const Point> points, const Pen& pen) override;
  void FillArea(const Area& area, Colour colour) override;
  void FillPolygon(std::span<const Point> corners, Colour colour) override;
  void WriteText(Point at, std::string_view text, const Font& font, Colour colour) override;

  // Each character (code point) is half as wide as the font is high, rounded down, plus one pixel
  // when bold; the text is as high as the font.
  Size MeasureText(std::string_view text, const Font& font) override;
  void CopyPicture(const Picture& picture, const Area& area) override;
  void PushClip(const Area& area) override;
  void PopClip() override;

 private:
  std::vector<std::string> calls_;
  bool exclusiveOr_ = true;
};

}  // namespace orvik
