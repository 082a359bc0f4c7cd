#include "platform/cairo/CairoSurface.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "platform/cairo/PixelLines.h"
#include "platform/cairo/SystemColours.h"

namespace orvik {
namespace {

constexpr double kPixelCentre = 0.5;
constexpr double kMostOfAChannel = 255;

double Channel(std::uint32_t redGreenBlue, int shift) {
  return (redGreenBlue >> shift & 0xFF) / kMostOfAChannel;
}

void AddRectangle(cairo_t* context, const Area& area) {
  cairo_rectangle(context, area.left, area.top, std::max(0, area.right - area.left),
                  std::max(0, area.bottom - area.top));
}

// Cairo reads the picture's own pixels, whose form is the same.
CairoHandle<cairo_surface_t> ViewOf(Picture& picture) {
  CairoHandle<cairo_surface_t> view(cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(picture.pixels.data()), CAIRO_FORMAT_RGB24,
      picture.size.width, picture.size.height, picture.size.width * 4));
  CheckCairo(view.get());
  return view;
}

}  // namespace

CairoSurface::CairoSurface(cairo_surface_t* target) : context_(cairo_create(target)) {
  CheckCairo(context_.get());
}

bool CairoSurface::Supports(SurfaceFeature) const {
  return false;
}

void CairoSurface::Line(Point from, Point to, const Pen& pen) {
  if (const auto area = AreaOfStraightLine(from, to, pen.width)) {
    FillArea(*area, pen.colour);
  } else {
    Polyline(std::array{from, to}, pen);
  }
}

void CairoSurface::Polyline(std::span<const Point> points, const Pen& pen) {
  if (points.size() < 2) return;
  if (AreLevelOrUpright(points)) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) Line(points[i], points[i + 1], pen);
    return;
  }
  Use(pen.colour);
  cairo_set_line_width(Context(), pen.width);
  cairo_set_line_join(Context(), CAIRO_LINE_JOIN_ROUND);
  Trace(points, kPixelCentre);
  cairo_stroke(Context());
}

void CairoSurface::FillArea(const Area& area, Colour colour) {
  Use(colour);
  AddRectangle(Context(), area);
  cairo_fill(Context());
}

void CairoSurface::FillPolygon(std::span<const Point> corners, Colour colour) {
  if (corners.empty()) return;
  Use(colour);
  Trace(corners, 0);
  cairo_fill(Context());
}

void CairoSurface::WriteText(Point at, std::string_view text, const Font& font, Colour colour) {
  Use(colour);
  text_.Show(Context(), at, text, font);
}

Size CairoSurface::MeasureText(std::string_view text, const Font& font) {
  return text_.Measure(text, font);
}

void CairoSurface::CopyPicture(const Picture& picture, const Area& area) {
  if (!IsConsistent(picture)) throw std::invalid_argument("The picture is not of its size.");
  if (picture.pixels.empty()) return;
  Picture copy = picture;
  const auto view = ViewOf(copy);
  cairo_save(Context());
  cairo_set_source_surface(Context(), view.get(), area.left, area.top);
  AddRectangle(Context(),
               {area.left, area.top, std::min(area.right, area.left + picture.size.width),
                std::min(area.bottom, area.top + picture.size.height)});
  cairo_fill(Context());
  cairo_restore(Context());
  // A page that is rendered later would still read the pixels: this makes it take its own copy now.
  cairo_surface_finish(view.get());
}

void CairoSurface::PushClip(const Area& area) {
  cairo_save(Context());
  AddRectangle(Context(), area);
  cairo_clip(Context());
}

void CairoSurface::PopClip() {
  cairo_restore(Context());
}

void CairoSurface::Use(Colour colour) {
  const std::uint32_t rgb = RedGreenBlue(colour);
  cairo_set_source_rgb(Context(), Channel(rgb, 16), Channel(rgb, 8), Channel(rgb, 0));
}

void CairoSurface::Trace(std::span<const Point> points, double offset) {
  cairo_new_path(Context());
  for (const Point point : points) {
    cairo_line_to(Context(), point.x + offset, point.y + offset);
  }
}

}  // namespace orvik
