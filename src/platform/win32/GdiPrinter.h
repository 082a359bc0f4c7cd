// A printer behind the spooler of Windows. Its pages are drawn by GDI.
#pragma once

#include <memory>

#include "platform/PagePrinter.h"
#include "platform/win32/GdiSurface.h"
#include "platform/win32/PrinterDc.h"

namespace orvik {

// Its pixels are square, whatever the device's are, and as many to the inch as PrinterPixelsPerInch
// says.
class GdiPrinter final : public PagePrinter {
 public:
  // The device context is not empty. One that the caller lends is left in the state that it came
  // in; where the caller has started a document on it (and no page), the pages are added to that
  // document, which the caller ends.
  explicit GdiPrinter(PrinterDc dc);
  ~GdiPrinter() override;

  int Resolution() const override { return resolution_; }
  Size PaperSize() const override { return paper_; }
  Area PrintableArea() const override { return printable_; }
  DocumentStart StartDocument(std::string_view title) override;
  int PageNumber() const override { return page_; }
  void NewPage() override;
  void EndDocument() override;

 protected:
  Surface& Page() override;
  Surface& ToMeasure() const override { return *surface_; }

 private:
  int Scaled(int devicePixels, int perInch) const;
  void MapPixels();
  bool JoinDocument();
  void EjectPage();

  PrinterDc dc_;
  int state_;  // of the device context before us
  int resolution_;
  Size paper_;
  Area printable_;
  std::unique_ptr<GdiSurface> surface_;
  int page_ = 1;
  bool ownsDocument_ = false;
  bool pageIsOpen_ = false;
};

// A printer on the device context; null where that is empty.
std::unique_ptr<Printer> MakeGdiPrinter(PrinterDc dc);

}  // namespace orvik
