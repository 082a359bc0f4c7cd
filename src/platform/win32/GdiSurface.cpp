#include "platform/win32/GdiSurface.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "platform/win32/GdiFont.h"

namespace orvik {
namespace {

static_assert(sizeof(Point) == sizeof(POINT));

constexpr Colour kSystemColour = 0x80000000;

std::vector<POINT> DevicePoints(std::span<const Point> points) {
  std::vector<POINT> device;
  device.reserve(points.size());
  for (const Point point : points) device.push_back({point.x, point.y});
  return device;
}

// A pen and its draw mode, selected while this lives. On a screen pens of one pixel need no object
// of their own.
class GdiPen {
 public:
  GdiPen(HDC dc, const Pen& pen)
      : dc_(dc),
        own_(pen.width > 1     ? MakeWide(pen)
             : DrawsAtOnce(dc) ? nullptr
                               : ::CreatePen(PS_SOLID, 1, DeviceColour(pen.colour))),
        selection_(dc, own_ ? own_.get() : ::GetStockObject(DC_PEN)),
        colourBefore_(::SetDCPenColor(dc, DeviceColour(pen.colour))),
        modeBefore_(::SetROP2(dc, pen.mode == DrawMode::ExclusiveOr ? R2_XORPEN : R2_COPYPEN)) {}
  ~GdiPen() {
    ::SetROP2(dc_, modeBefore_);
    ::SetDCPenColor(dc_, colourBefore_);
  }
  GdiPen(const GdiPen&) = delete;
  GdiPen& operator=(const GdiPen&) = delete;

 private:
  static HPEN MakeWide(const Pen& pen) {
    const LOGBRUSH brush{BS_SOLID, DeviceColour(pen.colour), 0};
    // Bevelled: round joins are slower and look the same on lines as thin and smooth as ours.
    return ::ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT | PS_JOIN_BEVEL,
                          static_cast<DWORD>(pen.width), &brush, 0, nullptr);
  }

  HDC dc_;
  GdiObject<HPEN> own_;
  Selection selection_;
  COLORREF colourBefore_;
  int modeBefore_;
};

// A brush, selected while this lives.
class GdiBrush {
 public:
  GdiBrush(HDC dc, Colour colour)
      : dc_(dc),
        own_(DrawsAtOnce(dc) ? nullptr : ::CreateSolidBrush(DeviceColour(colour))),
        selection_(dc, own_ ? own_.get() : ::GetStockObject(DC_BRUSH)),
        before_(::SetDCBrushColor(dc, DeviceColour(colour))) {}
  ~GdiBrush() { ::SetDCBrushColor(dc_, before_); }
  GdiBrush(const GdiBrush&) = delete;
  GdiBrush& operator=(const GdiBrush&) = delete;

 private:
  HDC dc_;
  GdiObject<HBRUSH> own_;
  Selection selection_;
  COLORREF before_;
};

// The picture's pixels as a bitmap, null where there can be none.
GdiObject<HBITMAP> MakeBitmap(const Picture& picture) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.size.width;
  info.bmiHeader.biHeight = -picture.size.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  GdiObject<HBITMAP> bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap) {
    std::memcpy(bits, picture.pixels.data(), picture.pixels.size() * sizeof(std::uint32_t));
  }
  return bitmap;
}

}  // namespace

COLORREF DeviceColour(Colour colour) {
  if ((colour & kSystemColour) == 0) return colour;
  return ::GetSysColor(static_cast<int>(colour & ~kSystemColour));
}

bool DrawsAtOnce(HDC dc) {
  return ::GetObjectType(dc) != OBJ_ENHMETADC && ::GetDeviceCaps(dc, TECHNOLOGY) == DT_RASDISPLAY;
}

GdiSurface::GdiSurface(HDC dc) : dc_(dc), state_(::SaveDC(dc)) {
  ::SetBkMode(dc_, TRANSPARENT);
  ::SetTextAlign(dc_, TA_LEFT | TA_TOP | TA_NOUPDATECP);
}

GdiSurface::~GdiSurface() {
  ::RestoreDC(dc_, state_);
}

// Not on paper, where ink cannot be flipped, nor in a metafile, which is played on paper too.
bool GdiSurface::Supports(SurfaceFeature feature) const {
  return feature == SurfaceFeature::ExclusiveOr && DrawsAtOnce(dc_);
}

// --- Lines ---

// GDI, too, leaves a line's last pixel out.
void GdiSurface::Line(Point from, Point to, const Pen& pen) {
  Polyline(std::array{from, to}, pen);
}

void GdiSurface::Polyline(std::span<const Point> points, const Pen& pen) {
  if (points.size() < 2) return;
  const GdiPen selected(dc_, pen);
  const std::vector<POINT> device = DevicePoints(points);
  ::Polyline(dc_, device.data(), static_cast<int>(device.size()));
}

// --- Shapes ---

void GdiSurface::FillArea(const Area& area, Colour colour) {
  if (area.left >= area.right || area.top >= area.bottom) return;
  const GdiBrush inside(dc_, colour);
  ::PatBlt(dc_, area.left, area.top, area.right - area.left, area.bottom - area.top, PATCOPY);
}

void GdiSurface::FillPolygon(std::span<const Point> corners, Colour colour) {
  if (corners.size() < 3) return;
  const Selection noOutline(dc_, ::GetStockObject(NULL_PEN));
  const GdiBrush inside(dc_, colour);
  const std::vector<POINT> device = DevicePoints(corners);
  ::Polygon(dc_, device.data(), static_cast<int>(device.size()));
}

// --- Text ---

void GdiSurface::WriteText(Point at, std::string_view text, const Font& font, Colour colour) {
  const GdiFont selected(dc_, font);
  if (!selected) return;
  const COLORREF before = ::SetTextColor(dc_, DeviceColour(colour));
  selected.Write(at, text);
  ::SetTextColor(dc_, before);
}

Size GdiSurface::MeasureText(std::string_view text, const Font& font) {
  return GdiFont(dc_, font).Measure(text);
}

// --- Pictures and clips ---

void GdiSurface::CopyPicture(const Picture& picture, const Area& area) {
  if (!IsConsistent(picture)) throw std::invalid_argument("The picture is not of its size.");
  if (picture.pixels.empty()) return;
  const GdiObject<HBITMAP> bitmap = MakeBitmap(picture);
  const MemoryDc memory(::CreateCompatibleDC(dc_));
  if (!bitmap || !memory) return;
  const Selection selected(memory.get(), bitmap.get());
  const int width = std::min(area.right - area.left, picture.size.width);
  const int height = std::min(area.bottom - area.top, picture.size.height);
  if (width <= 0 || height <= 0) return;
  ::BitBlt(dc_, area.left, area.top, width, height, memory.get(), 0, 0, SRCCOPY);
}

void GdiSurface::PushClip(const Area& area) {
  ::SaveDC(dc_);
  ::IntersectClipRect(dc_, area.left, area.top, area.right, area.bottom);
}

void GdiSurface::PopClip() {
  ::RestoreDC(dc_, -1);
}

}  // namespace orvik
