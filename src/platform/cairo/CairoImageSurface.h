// A surface in memory, pixel by pixel: for picture files, and as a screen for tests and
// measurements. Exclusive-or pens flip exactly the pixels of their line, unsmoothed.
#pragma once

#include <string>

#include "platform/cairo/CairoSurface.h"

namespace orvik {

class CairoImageSurface final : public Surface {
 public:
  // Black at first. Throws std::runtime_error for a size that Cairo refuses.
  explicit CairoImageSurface(Size size);

  // What has been drawn.
  Picture Pixels() const;

  // For drawing directly with Cairo.
  cairo_surface_t* Image() const { return image_.get(); }

  // The picture as the bytes of a PNG file.
  std::string Png() const;

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
  void Flip(std::span<const Point> points, const Pen& pen);

  Size size_;
  CairoHandle<cairo_surface_t> image_;
  CairoSurface drawing_;
  std::vector<Area> clips_;  // each within the one before
};

}  // namespace orvik
