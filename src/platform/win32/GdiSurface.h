// A drawing surface on a device context of Windows: a window, a picture in memory, a printer's
// page. Its units are the device's pixels. Pens of one pixel draw exactly the pixels of their line;
// wider ones have flat ends and bevelled joins.
#pragma once

#include "platform/Surface.h"
#include "platform/win32/GdiHandles.h"

namespace orvik {

class GdiSurface final : public Surface {
 public:
  // `dc` outlives the surface, which leaves it as it was.
  explicit GdiSurface(HDC dc);
  ~GdiSurface() override;

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
  HDC dc_;
  int state_;  // of the device context before us
};

// 0x00BBGGRR; a system colour as the user has it.
COLORREF DeviceColour(Colour colour);

// A screen or a picture in memory. Anything else records what is drawn and plays it later: the
// spooler of printers as a metafile does, and neither keeps the colours of the system's changeable
// pen and brush.
bool DrawsAtOnce(HDC dc);

}  // namespace orvik
