// A font made for one text: selected while this lives, then deleted.
#pragma once

#include "platform/Surface.h"
#include "platform/win32/GdiHandles.h"

namespace orvik {

class GdiFont {
 public:
  // `font` in pixels of the device.
  GdiFont(HDC dc, const Font& font);
  ~GdiFont();
  GdiFont(const GdiFont&) = delete;
  GdiFont& operator=(const GdiFont&) = delete;

  // False where the font could not be made, or has no height: nothing is selected then.
  explicit operator bool() const { return font_ != nullptr; }

  // The text's extent before it is turned.
  Size Measure(std::string_view text) const;

  // Writes the text in the device's present colours.
  void Write(Point at, std::string_view text) const;

 private:
  HDC dc_;
  GdiObject<HFONT> font_;
  HGDIOBJ before_ = nullptr;
};

}  // namespace orvik
