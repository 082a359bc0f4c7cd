#include "platform/cairo/CairoImageSurface.h"

#include <array>
#include <cstring>

#include "platform/cairo/PixelLines.h"
#include "platform/cairo/SystemColours.h"

namespace orvik {
namespace {

constexpr std::uint32_t kColourBits = 0xFFFFFF;

CairoHandle<cairo_surface_t> MakeImage(Size size) {
  CairoHandle<cairo_surface_t> image(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height));
  CheckCairo(image.get());
  return image;
}

bool Holds(const Area& area, Point point) {
  return area.left <= point.x && point.x < area.right && area.top <= point.y &&
         point.y < area.bottom;
}

}  // namespace

CairoImageSurface::CairoImageSurface(Size size)
    : size_(size),
      image_(MakeImage(size)),
      drawing_(image_.get()),
      clips_{{0, 0, size.width, size.height}} {}

Picture CairoImageSurface::Pixels() const {
  cairo_surface_flush(image_.get());
  const unsigned char* bytes = cairo_image_surface_get_data(image_.get());
  const std::size_t stride = static_cast<std::size_t>(cairo_image_surface_get_stride(image_.get()));
  const auto width = static_cast<std::size_t>(size_.width);
  const auto height = static_cast<std::size_t>(size_.height);
  Picture picture{size_, std::vector<std::uint32_t>(width * height)};
  for (std::size_t y = 0; y < height; ++y) {
    std::memcpy(&picture.pixels[y * width], bytes + y * stride, width * sizeof(std::uint32_t));
  }
  for (std::uint32_t& pixel : picture.pixels) pixel &= kColourBits;
  return picture;
}

std::string CairoImageSurface::Png() const {
  std::string bytes;
  CheckCairo(cairo_surface_write_to_png_stream(image_.get(), AppendBytes, &bytes));
  return bytes;
}

bool CairoImageSurface::Supports(SurfaceFeature feature) const {
  return feature == SurfaceFeature::ExclusiveOr;
}

void CairoImageSurface::Line(Point from, Point to, const Pen& pen) {
  if (pen.mode == DrawMode::ExclusiveOr) return Flip(std::array{from, to}, pen);
  drawing_.Line(from, to, pen);
}

void CairoImageSurface::Polyline(std::span<const Point> points, const Pen& pen) {
  if (pen.mode == DrawMode::ExclusiveOr) return Flip(points, pen);
  drawing_.Polyline(points, pen);
}

void CairoImageSurface::Flip(std::span<const Point> points, const Pen& pen) {
  cairo_surface_flush(image_.get());
  unsigned char* bytes = cairo_image_surface_get_data(image_.get());
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(image_.get()));
  const std::uint32_t bits = RedGreenBlue(pen.colour);
  for (const Point at : PixelsOfLine(points, pen.width)) {
    if (!Holds(clips_.back(), at)) continue;
    unsigned char* place = bytes + static_cast<std::size_t>(at.y) * stride +
                           static_cast<std::size_t>(at.x) * sizeof(std::uint32_t);
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, place, sizeof pixel);
    pixel ^= bits;
    std::memcpy(place, &pixel, sizeof pixel);
  }
  cairo_surface_mark_dirty(image_.get());
}

void CairoImageSurface::FillArea(const Area& area, Colour colour) {
  drawing_.FillArea(area, colour);
}

void CairoImageSurface::FillPolygon(std::span<const Point> corners, Colour colour) {
  drawing_.FillPolygon(corners, colour);
}

void CairoImageSurface::WriteText(Point at, std::string_view text, const Font& font,
                                  Colour colour) {
  drawing_.WriteText(at, text, font, colour);
}

Size CairoImageSurface::MeasureText(std::string_view text, const Font& font) {
  return drawing_.MeasureText(text, font);
}

void CairoImageSurface::CopyPicture(const Picture& picture, const Area& area) {
  drawing_.CopyPicture(picture, area);
}

void CairoImageSurface::PushClip(const Area& area) {
  clips_.push_back(Intersection(clips_.back(), area));
  drawing_.PushClip(area);
}

void CairoImageSurface::PopClip() {
  clips_.pop_back();
  drawing_.PopClip();
}

}  // namespace orvik
