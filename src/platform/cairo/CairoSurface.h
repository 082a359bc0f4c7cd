// A surface on a Cairo context: a page of a PDF, and what the image surface shares with it.
//
// A level or upright line fills exactly the pixels of its pen; any other line is smoothed.
// Exclusive-or pens are not supported.
#pragma once

#include "platform/Surface.h"
#include "platform/cairo/CairoHandles.h"
#include "platform/cairo/CairoText.h"

namespace orvik {

class CairoSurface : public Surface {
 public:
  // Draws on the target, which it keeps alive. One unit of the target is a pixel.
  explicit CairoSurface(cairo_surface_t* target);

  // For setting up pages and scales.
  cairo_t* Context() const { return context_.get(); }

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
  void Use(Colour colour);
  void Trace(std::span<const Point> points, double offset);

  CairoHandle<cairo_t> context_;
  CairoText text_;
};

}  // namespace orvik
