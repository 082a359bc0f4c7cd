// Owners for what Cairo and Pango hand out; each gives its object back once.
#pragma once

#include <pango/pangocairo.h>

#include <memory>

namespace orvik {

struct ReleaseCairo {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
  void operator()(PangoFontMap* map) const { g_object_unref(map); }
  void operator()(PangoContext* context) const { g_object_unref(context); }
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};

template <typename Object>
using CairoHandle = std::unique_ptr<Object, ReleaseCairo>;

// A write function of Cairo's that puts the bytes at the end of the std::string `bytes`;
// CAIRO_STATUS_NO_MEMORY where memory runs out.
cairo_status_t AppendBytes(void* bytes, const unsigned char* data, unsigned int length);

// Throws std::runtime_error with Cairo's own text unless the status, or that of the context or
// surface, is success.
void CheckCairo(cairo_status_t status);
void CheckCairo(cairo_t* context);
void CheckCairo(cairo_surface_t* surface);

}  // namespace orvik
