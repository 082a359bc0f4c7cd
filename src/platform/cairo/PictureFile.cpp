#include "platform/cairo/PictureFile.h"

#include <cairo-pdf.h>

#include <array>
#include <utility>

#include "base/Text.h"
#include "platform/cairo/CairoImageSurface.h"
#include "platform/cairo/SvgSurface.h"

namespace orvik {
namespace {

constexpr double kPointsPerPixel = 72.0 / 96;

constexpr std::array<std::pair<std::string_view, PictureKind>, 3> kEndings = {
    {{".png", PictureKind::Png}, {".svg", PictureKind::Svg}, {".pdf", PictureKind::Pdf}}};

std::string MakePng(Size size, const std::function<void(Surface&)>& draw) {
  CairoImageSurface surface(size);
  draw(surface);
  return surface.Png();
}

std::string MakeSvg(Size size, std::string_view title, const std::function<void(Surface&)>& draw) {
  SvgSurface surface(size, title);
  draw(surface);
  return surface.Svg();
}

std::string MakePdf(Size size, std::string_view title, const std::function<void(Surface&)>& draw) {
  std::string bytes;
  const CairoHandle<cairo_surface_t> pdf(cairo_pdf_surface_create_for_stream(
      AppendBytes, &bytes, size.width * kPointsPerPixel, size.height * kPointsPerPixel));
  CheckCairo(pdf.get());
  cairo_pdf_surface_set_metadata(pdf.get(), CAIRO_PDF_METADATA_TITLE, std::string(title).c_str());
  {
    CairoSurface page(pdf.get());
    cairo_scale(page.Context(), kPointsPerPixel, kPointsPerPixel);
    draw(page);
    cairo_show_page(page.Context());
    CheckCairo(page.Context());
  }
  cairo_surface_finish(pdf.get());
  CheckCairo(pdf.get());
  return bytes;
}

}  // namespace

std::optional<PictureKind> PictureKindOf(std::string_view path) {
  for (const auto& [ending, kind] : kEndings) {
    if (path.size() > ending.size() && EndsWithIgnoringCase(path, ending)) return kind;
  }
  return std::nullopt;
}

std::string MakePictureFile(PictureKind kind, Size size, std::string_view title,
                            const std::function<void(Surface&)>& draw) {
  if (kind == PictureKind::Svg) return MakeSvg(size, title, draw);
  if (kind == PictureKind::Pdf) return MakePdf(size, title, draw);
  return MakePng(size, draw);
}

}  // namespace orvik
