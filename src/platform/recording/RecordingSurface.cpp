#include "platform/recording/RecordingSurface.h"

#include <iomanip>
#include <sstream>

#include "base/Utf8.h"

namespace orvik {
namespace {

std::string Number(int value) {
  return std::to_string(value);
}

std::string Of(Point point) {
  return Number(point.x) + "," + Number(point.y);
}

std::string Of(const Area& area) {
  return Of(Point{area.left, area.top}) + " to " + Of(Point{area.right, area.bottom});
}

std::string Of(std::span<const Point> points) {
  std::string text;
  for (const Point point : points) text += " " + Of(point);
  return text;
}

std::string OfColour(Colour colour) {
  std::ostringstream text;
  text << " colour 0x" << std::hex << std::uppercase << std::setfill('0') << std::setw(6) << colour;
  return text.str();
}

std::string Of(const Pen& pen) {
  return OfColour(pen.colour) + " width " + Number(pen.width) +
         (pen.mode == DrawMode::ExclusiveOr ? " xor" : " copy");
}

}  // namespace

std::string TextOfFont(const Font& font) {
  std::string text = font.face + " " + Number(font.pixelHeight);
  if (font.bold) text += " bold";
  if (font.italic) text += " italic";
  if (font.underline) text += " underline";
  if (font.strikethrough) text += " strikethrough";
  if (font.escapement != 0) text += " angle " + Number(font.escapement);
  return text;
}

void RecordingSurface::Support(SurfaceFeature feature, bool supported) {
  if (feature == SurfaceFeature::ExclusiveOr) exclusiveOr_ = supported;
}

bool RecordingSurface::Supports(SurfaceFeature feature) const {
  return feature == SurfaceFeature::ExclusiveOr && exclusiveOr_;
}

void RecordingSurface::Line(Point from, Point to, const Pen& pen) {
  calls_.push_back("line " + Of(from) + " to " + Of(to) + Of(pen));
}

void RecordingSurface::Polyline(std::span<const Point> points, const Pen& pen) {
  calls_.push_back("polyline" + Of(points) + Of(pen));
}

void RecordingSurface::FillArea(const Area& area, Colour colour) {
  calls_.push_back("fill " + Of(area) + OfColour(colour));
}

void RecordingSurface::FillPolygon(std::span<const Point> corners, Colour colour) {
  calls_.push_back("fill polygon" + Of(corners) + OfColour(colour));
}

void RecordingSurface::WriteText(Point at, std::string_view text, const Font& font, Colour colour) {
  calls_.push_back("text " + Of(at) + " \"" + std::string(text) + "\" " + TextOfFont(font) +
                   OfColour(colour));
}

Size RecordingSurface::MeasureText(std::string_view text, const Font& font) {
  const int characterWidth = font.pixelHeight / 2 + (font.bold ? 1 : 0);
  return {static_cast<int>(CountCodePoints(text)) * characterWidth, font.pixelHeight};
}

void RecordingSurface::CopyPicture(const Picture& picture, const Area& area) {
  calls_.push_back("picture " + Number(picture.size.width) + "x" + Number(picture.size.height) +
                   " in " + Of(area));
}

void RecordingSurface::PushClip(const Area& area) {
  calls_.push_back("clip " + Of(area));
}

void RecordingSurface::PopClip() {
  calls_.emplace_back("unclip");
}

}  // namespace orvik
