// A printer without paper: its document is the bytes of a PDF file, with real text and embedded
// fonts. The same calls and the same date make the same bytes.
#pragma once

#include <memory>
#include <string>

#include "platform/Desktop.h"
#include "platform/PagePrinter.h"
#include "platform/cairo/CairoHandles.h"
#include "platform/cairo/CairoSurface.h"

namespace orvik {

enum class PaperFormat : std::uint8_t { Letter, A4 };

class CairoPrinter final : public PagePrinter {
 public:
  // `date` becomes the document's creation date. `bytes` outlives the printer and is complete after
  // EndDocument. Throws std::runtime_error where Cairo refuses the document.
  CairoPrinter(std::string& bytes, PaperFormat paper, const ClockTime& date);

  int Resolution() const override;
  Size PaperSize() const override { return paper_; }
  Area PrintableArea() const override;
  DocumentStart StartDocument(std::string_view title) override;
  int PageNumber() const override { return page_; }
  void NewPage() override;
  void EndDocument() override;

 protected:
  Surface& Page() override { return *surface_; }
  Surface& ToMeasure() const override { return *surface_; }

 private:
  void Eject();

  Size paper_;
  CairoHandle<cairo_surface_t> pdf_;
  std::unique_ptr<CairoSurface> surface_;
  int page_ = 1;
};

}  // namespace orvik
