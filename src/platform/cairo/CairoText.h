// Text by Pango, the same on every machine: sizes in pixels whatever the screen's resolution, no
// hinting, no dependence on the user's language, and Arial replaced by Liberation Sans, the free
// face with the same metrics.
#pragma once

#include <string_view>

#include "platform/Surface.h"
#include "platform/cairo/CairoHandles.h"

namespace orvik {

class CairoText {
 public:
  CairoText();

  // Whole pixels that hold the text before it is turned; zero for a font without a height.
  Size Measure(std::string_view text, const Font& font) const;

  // From the top of the text's cell down to its baseline, pixels.
  double Ascent(std::string_view text, const Font& font) const;

  // Writes the text in the context's present colour; `at` is the upper left corner of its first
  // character's cell.
  void Show(cairo_t* context, Point at, std::string_view text, const Font& font) const;

 private:
  CairoHandle<PangoLayout> LayOut(std::string_view text, const Font& font) const;

  CairoHandle<PangoFontMap> fontMap_;  // outlives the context that reads it
  CairoHandle<PangoContext> context_;
};

}  // namespace orvik
