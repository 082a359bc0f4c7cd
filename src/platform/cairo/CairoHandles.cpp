#include "platform/cairo/CairoHandles.h"

#include <stdexcept>
#include <string>

namespace orvik {
// Cairo, which calls this, is C: no exception may pass through it.
cairo_status_t AppendBytes(void* bytes, const unsigned char* data, unsigned int length) {
  try {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (...) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

void CheckCairo(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(cairo_status_to_string(status));
}

void CheckCairo(cairo_t* context) {
  CheckCairo(cairo_status(context));
}

void CheckCairo(cairo_surface_t* surface) {
  CheckCairo(cairo_surface_status(surface));
}

}  // namespace orvik
