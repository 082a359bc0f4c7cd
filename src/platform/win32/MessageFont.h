// The font in which the system writes messages, as the user has set it, at one scaling: the
// window's texts are in it.
#pragma once

#include "platform/FormDesign.h"
#include "platform/win32/GdiHandles.h"

namespace orvik {

class MessageFont {
 public:
  explicit MessageFont(int dpi);

  HFONT Plain() const { return plain_.get(); }
  HFONT Bold() const { return bold_.get(); }  // for headings

  int Dpi() const { return dpi_; }

  // The measures of plain text; they refer to this font while they are used. Headings are as high.
  TextMeasures Measures() const;

 private:
  int dpi_;
  GdiObject<HFONT> plain_;
  GdiObject<HFONT> bold_;
};

}  // namespace orvik
