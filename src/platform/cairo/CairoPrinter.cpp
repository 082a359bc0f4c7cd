#include "platform/cairo/CairoPrinter.h"

#include <cairo-pdf.h>

#include <array>
#include <cstdio>

namespace orvik {
namespace {

constexpr int kResolution = 1200;  // pixels per inch
constexpr double kPointsPerPrinterPixel = 72.0 / kResolution;
constexpr int kUnprintable = kResolution / 4;  // a quarter of an inch, as on common printers

Size PixelsOf(PaperFormat paper) {
  constexpr double kMillimetresPerInch = 25.4;
  if (paper == PaperFormat::Letter) return {17 * kResolution / 2, 11 * kResolution};
  return {static_cast<int>(210 * kResolution / kMillimetresPerInch),
          static_cast<int>(297 * kResolution / kMillimetresPerInch)};
}

std::string IsoText(const ClockTime& time) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", time.date.year,
                time.date.month, time.date.day, time.hour, time.minute, time.second);
  return text.data();
}

}  // namespace

CairoPrinter::CairoPrinter(std::string& bytes, PaperFormat paper, const ClockTime& date)
    : paper_(PixelsOf(paper)),
      pdf_(cairo_pdf_surface_create_for_stream(AppendBytes, &bytes,
                                               paper_.width * kPointsPerPrinterPixel,
                                               paper_.height * kPointsPerPrinterPixel)) {
  CheckCairo(pdf_.get());
  cairo_pdf_surface_set_metadata(pdf_.get(), CAIRO_PDF_METADATA_CREATE_DATE, IsoText(date).c_str());
  surface_ = std::make_unique<CairoSurface>(pdf_.get());
  cairo_scale(surface_->Context(), kPointsPerPrinterPixel, kPointsPerPrinterPixel);
}

int CairoPrinter::Resolution() const {
  return kResolution;
}

Area CairoPrinter::PrintableArea() const {
  return {kUnprintable, kUnprintable, paper_.width - kUnprintable, paper_.height - kUnprintable};
}

DocumentStart CairoPrinter::StartDocument(std::string_view title) {
  cairo_pdf_surface_set_metadata(pdf_.get(), CAIRO_PDF_METADATA_TITLE, std::string(title).c_str());
  return DocumentStart::Started;
}

void CairoPrinter::Eject() {
  cairo_show_page(surface_->Context());
  if (const auto status = cairo_status(surface_->Context()); status != CAIRO_STATUS_SUCCESS) {
    throw PrinterError(cairo_status_to_string(status));
  }
}

void CairoPrinter::NewPage() {
  Eject();
  ++page_;
}

void CairoPrinter::EndDocument() {
  Eject();
  cairo_surface_finish(pdf_.get());
  if (const auto status = cairo_surface_status(pdf_.get()); status != CAIRO_STATUS_SUCCESS) {
    throw PrinterError(cairo_status_to_string(status));
  }
}

}  // namespace orvik
