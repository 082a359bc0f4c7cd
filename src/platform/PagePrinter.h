// A printer whose pages are surfaces of another kind: every drawing call goes on to the page.
#pragma once

#include "platform/Printer.h"

namespace orvik {

class PagePrinter : public Printer {
 public:
  bool Supports(SurfaceFeature feature) const override { return ToMeasure().Supports(feature); }
  void Line(Point from, Point to, const Pen& pen) override { Page().Line(from, to, pen); }
  void Polyline(std::span<const Point> points, const Pen& pen) override {
    Page().Polyline(points, pen);
  }
  void FillArea(const Area& area, Colour colour) override { Page().FillArea(area, colour); }
  void FillPolygon(std::span<const Point> corners, Colour colour) override {
    Page().FillPolygon(corners, colour);
  }
  void WriteText(Point at, std::string_view text, const Font& font, Colour colour) override {
    Page().WriteText(at, text, font, colour);
  }
  Size MeasureText(std::string_view text, const Font& font) override {
    return ToMeasure().MeasureText(text, font);
  }
  void CopyPicture(const Picture& picture, const Area& area) override {
    Page().CopyPicture(picture, area);
  }
  void PushClip(const Area& area) override { Page().PushClip(area); }
  void PopClip() override { Page().PopClip(); }

 protected:
  // The present page, begun where it was not; throws PrinterError.
  virtual Surface& Page() = 0;

  // What answers questions that need no page.
  virtual Surface& ToMeasure() const = 0;
};

}  // namespace orvik
