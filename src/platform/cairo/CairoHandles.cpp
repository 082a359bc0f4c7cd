#include "platform/cairo/CairoHandles.h"

#include <stdexcept>
#include <string>

namespace orvik {
namespace {

void Check(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(cairo_status_to_string(status));
}

}  // namespace

cairo_status_t AppendBytes(void* bytes, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

void CheckCairo(cairo_t* context) {
  Check(cairo_status(context));
}

void CheckCairo(cairo_surface_t* surface) {
  Check(cairo_surface_status(surface));
}

}  // namespace orvik
