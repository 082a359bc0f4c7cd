// A surface that writes SVG: lines and areas as shapes, text as text. Text is measured as Cairo
// measures it, and carries its length, so that it fits its place whatever face it is shown in.
#pragma once

#include <string>

#include "platform/Surface.h"
#include "platform/cairo/CairoText.h"

namespace orvik {

class SvgSurface final : public Surface {
 public:
  // `title` is what a viewer calls the picture.
  SvgSurface(Size size, std::string_view title);

  // The whole file as drawn so far. Every clip has been popped.
  std::string Svg() const;

  bool Supports(SurfaceFeature feature) const override;
  void Line(Point from, Point to, const Pen& pen) override;
  void Polyline(std::span<const Point> points, const Pen& pen) override;
  void FillArea(const Area& area, Colour colour) override;
  void FillPolygon(std::span<const Point> corners, Colour colour) override;
  void WriteText(Point at, std::string_view text, const Font& font, Colour colour) override;
  Size MeasureText(std::string_view text, const Font& font) override;
  void CopyPicture(const Picture& picture, const Area& area) override;
  void PushClip(const Area& area) override;
  void PopClip() override;

 private:
  std::string svg_;
  int clips_ = 0;  // numbers those that were pushed
  CairoText text_;
};

}  // namespace orvik
