#include "platform/cairo/CairoText.h"

#include <numbers>
#include <string>

namespace orvik {
namespace {

CairoHandle<cairo_font_options_t> PlainOptions() {
  CairoHandle<cairo_font_options_t> options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  return options;
}

std::string Family(const std::string& face) {
  return face == "Arial" ? "Liberation Sans,Arial" : face;
}

CairoHandle<PangoFontDescription> Describe(const Font& font) {
  CairoHandle<PangoFontDescription> description(pango_font_description_new());
  pango_font_description_set_family(description.get(), Family(font.face).c_str());
  pango_font_description_set_absolute_size(description.get(),
                                           static_cast<double>(font.pixelHeight) * PANGO_SCALE);
  pango_font_description_set_weight(description.get(),
                                    font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_font_description_set_style(description.get(),
                                   font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  return description;
}

CairoHandle<PangoAttrList> Lines(const Font& font) {
  CairoHandle<PangoAttrList> lines(pango_attr_list_new());
  if (font.underline) {
    pango_attr_list_insert(lines.get(), pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
  }
  if (font.strikethrough) pango_attr_list_insert(lines.get(), pango_attr_strikethrough_new(TRUE));
  return lines;
}

int WholePixels(int pangoUnits) {
  return (pangoUnits + PANGO_SCALE - 1) / PANGO_SCALE;
}

constexpr int kMostPixelHeight = 32767;  // beyond it Pango's own units overflow

bool HasHeight(const Font& font) {
  return 0 < font.pixelHeight && font.pixelHeight <= kMostPixelHeight;
}

}  // namespace

CairoText::CairoText()
    : fontMap_(pango_cairo_font_map_new()),
      context_(pango_font_map_create_context(fontMap_.get())) {
  pango_cairo_context_set_font_options(context_.get(), PlainOptions().get());
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  pango_context_set_language(context_.get(), pango_language_from_string("en-us"));
  pango_context_set_base_dir(context_.get(), PANGO_DIRECTION_LTR);
}

CairoHandle<PangoLayout> CairoText::LayOut(std::string_view text, const Font& font) const {
  CairoHandle<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  pango_layout_set_font_description(layout.get(), Describe(font).get());
  pango_layout_set_attributes(layout.get(), Lines(font).get());
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
  return layout;
}

Size CairoText::Measure(std::string_view text, const Font& font) const {
  if (!HasHeight(font)) return {};
  int width = 0;
  int height = 0;
  pango_layout_get_size(LayOut(text, font).get(), &width, &height);
  return {WholePixels(width), WholePixels(height)};
}

double CairoText::Ascent(std::string_view text, const Font& font) const {
  if (!HasHeight(font)) return 0;
  return static_cast<double>(pango_layout_get_baseline(LayOut(text, font).get())) / PANGO_SCALE;
}

void CairoText::Show(cairo_t* context, Point at, std::string_view text, const Font& font) const {
  if (!HasHeight(font)) return;
  constexpr double kTenthsInHalfTurn = 1800;
  cairo_save(context);
  cairo_translate(context, at.x, at.y);
  cairo_rotate(context, -font.escapement * std::numbers::pi / kTenthsInHalfTurn);
  cairo_move_to(context, 0, 0);
  pango_cairo_show_layout(context, LayOut(text, font).get());
  cairo_restore(context);
}

}  // namespace orvik
