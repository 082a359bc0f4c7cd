#include "platform/cairo/SvgSurface.h"

#include <algorithm>
#include <array>

#include "base/NumberText.h"
#include "platform/cairo/Base64.h"
#include "platform/cairo/CairoImageSurface.h"
#include "platform/cairo/PixelLines.h"
#include "platform/cairo/SystemColours.h"

namespace orvik {
namespace {

std::string Attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string Attribute(std::string_view name, int value) {
  return Attribute(name, std::to_string(value));
}

std::string ColourText(Colour colour) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const std::uint32_t rgb = RedGreenBlue(colour);
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[rgb >> shift & 0xF];
  return text;
}

// Text as XML carries it; control characters, which it cannot, become blanks.
std::string Escape(std::string_view text) {
  std::string escaped;
  for (const char byte : text) {
    switch (byte) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += static_cast<unsigned char>(byte) < ' ' ? ' ' : byte;
    }
  }
  return escaped;
}

std::string RectangleOf(const Area& area) {
  return Attribute("x", area.left) + Attribute("y", area.top) +
         Attribute("width", std::max(0, area.right - area.left)) +
         Attribute("height", std::max(0, area.bottom - area.top));
}

std::string PointsOf(std::span<const Point> points) {
  std::string text;
  for (const Point point : points) {
    if (!text.empty()) text += ' ';
    text += std::to_string(point.x) + "," + std::to_string(point.y);
  }
  return Attribute("points", text);
}

std::string FacesOf(const Font& font) {
  const std::string others = font.face == "Arial" ? ", 'Liberation Sans', Helvetica" : "";
  return Attribute("font-family", "'" + Escape(font.face) + "'" + others + ", sans-serif");
}

std::string StyleOf(const Font& font) {
  std::string style = FacesOf(font) + Attribute("font-size", font.pixelHeight);
  if (font.bold) style += Attribute("font-weight", "bold");
  if (font.italic) style += Attribute("font-style", "italic");
  std::string lines;
  if (font.underline) lines += "underline ";
  if (font.strikethrough) lines += "line-through";
  if (!lines.empty()) style += Attribute("text-decoration", lines);
  return style;
}

std::string TurnOf(const Font& font, Point at) {
  if (font.escapement == 0) return {};
  return Attribute("transform", "rotate(" + ConvertToString(-font.escapement / 10.0) + " " +
                                    std::to_string(at.x) + " " + std::to_string(at.y) + ")");
}

}  // namespace

SvgSurface::SvgSurface(Size size, std::string_view title) {
  const std::string width = std::to_string(size.width);
  const std::string height = std::to_string(size.height);
  svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
         Attribute("width", width) + Attribute("height", height) +
         Attribute("viewBox", "0 0 " + width + " " + height) + ">\n<title>" + Escape(title) +
         "</title>\n";
}

std::string SvgSurface::Svg() const {
  return svg_ + "</svg>\n";
}

bool SvgSurface::Supports(SurfaceFeature) const {
  return false;
}

void SvgSurface::Line(Point from, Point to, const Pen& pen) {
  if (const auto area = AreaOfStraightLine(from, to, pen.width)) {
    FillArea(*area, pen.colour);
  } else {
    Polyline(std::array{from, to}, pen);
  }
}

void SvgSurface::Polyline(std::span<const Point> points, const Pen& pen) {
  if (points.size() < 2) return;
  if (AreLevelOrUpright(points)) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) Line(points[i], points[i + 1], pen);
    return;
  }
  // Lines run through the middle of their pixels.
  svg_ += "<polyline" + PointsOf(points) + Attribute("transform", "translate(0.5 0.5)") +
          Attribute("fill", "none") + Attribute("stroke", ColourText(pen.colour)) +
          Attribute("stroke-width", pen.width) + Attribute("stroke-linejoin", "round") + "/>\n";
}

void SvgSurface::FillArea(const Area& area, Colour colour) {
  svg_ += "<rect" + RectangleOf(area) + Attribute("fill", ColourText(colour)) + "/>\n";
}

void SvgSurface::FillPolygon(std::span<const Point> corners, Colour colour) {
  svg_ += "<polygon" + PointsOf(corners) + Attribute("fill", ColourText(colour)) + "/>\n";
}

void SvgSurface::WriteText(Point at, std::string_view text, const Font& font, Colour colour) {
  const Size size = MeasureText(text, font);
  if (size.width == 0) return;
  svg_ += "<text" + Attribute("x", at.x) +
          Attribute("y", ConvertToString(static_cast<float>(at.y + text_.Ascent(text, font)))) +
          Attribute("textLength", size.width) + StyleOf(font) + TurnOf(font, at) +
          Attribute("fill", ColourText(colour)) + Attribute("xml:space", "preserve") + ">" +
          Escape(text) + "</text>\n";
}

Size SvgSurface::MeasureText(std::string_view text, const Font& font) {
  return text_.Measure(text, font);
}

void SvgSurface::CopyPicture(const Picture& picture, const Area& area) {
  if (picture.pixels.empty()) return;
  CairoImageSurface image(picture.size);
  image.CopyPicture(picture, {0, 0, picture.size.width, picture.size.height});
  const ClipScope clip(*this, area);
  svg_ += "<image" + Attribute("x", area.left) + Attribute("y", area.top) +
          Attribute("width", picture.size.width) + Attribute("height", picture.size.height) +
          Attribute("href", "data:image/png;base64," + Base64(image.Png())) + "/>\n";
}

void SvgSurface::PushClip(const Area& area) {
  const std::string name = "clip" + std::to_string(++clips_);
  svg_ += "<clipPath" + Attribute("id", name) + "><rect" + RectangleOf(area) + "/></clipPath>\n<g" +
          Attribute("clip-path", "url(#" + name + ")") + ">\n";
}

void SvgSurface::PopClip() {
  svg_ += "</g>\n";
}

}  // namespace orvik
