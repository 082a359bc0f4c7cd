#include "platform/win32/GdiPrinter.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/PrinterPixels.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

double Inches(HDC dc, int extent, int perInch) {
  return static_cast<double>(::GetDeviceCaps(dc, extent)) /
         std::max(1, ::GetDeviceCaps(dc, perInch));
}

int PixelsPerInch(HDC dc) {
  const double longerSide =
      std::max(Inches(dc, PHYSICALWIDTH, LOGPIXELSX), Inches(dc, PHYSICALHEIGHT, LOGPIXELSY));
  return PrinterPixelsPerInch(::GetDeviceCaps(dc, LOGPIXELSY), longerSide);
}

}  // namespace

GdiPrinter::GdiPrinter(PrinterDc dc)
    : dc_(std::move(dc)), state_(::SaveDC(dc_.Get())), resolution_(PixelsPerInch(dc_.Get())) {
  const auto caps = [this](int index) { return ::GetDeviceCaps(dc_.Get(), index); };
  const int acrossInch = caps(LOGPIXELSX);
  const int downInch = caps(LOGPIXELSY);
  const int left = Scaled(caps(PHYSICALOFFSETX), acrossInch);
  const int top = Scaled(caps(PHYSICALOFFSETY), downInch);
  paper_ = {Scaled(caps(PHYSICALWIDTH), acrossInch), Scaled(caps(PHYSICALHEIGHT), downInch)};
  printable_ = {left, top, left + Scaled(caps(HORZRES), acrossInch),
                top + Scaled(caps(VERTRES), downInch)};
  MapPixels();
  surface_ = std::make_unique<GdiSurface>(dc_.Get());
}

GdiPrinter::~GdiPrinter() {
  surface_.reset();
  if (ownsDocument_) ::AbortDoc(dc_.Get());
  ::RestoreDC(dc_.Get(), state_);
}

int GdiPrinter::Scaled(int devicePixels, int perInch) const {
  return perInch > 0 ? ::MulDiv(devicePixels, resolution_, perInch) : devicePixels;
}

// Our pixels count from the paper's corner, the device's from that of its printable area.
void GdiPrinter::MapPixels() {
  HDC dc = dc_.Get();
  ::SetMapMode(dc, MM_ANISOTROPIC);
  ::SetWindowExtEx(dc, resolution_, resolution_, nullptr);
  ::SetViewportExtEx(dc, std::max(1, ::GetDeviceCaps(dc, LOGPIXELSX)),
                     std::max(1, ::GetDeviceCaps(dc, LOGPIXELSY)), nullptr);
  ::SetWindowOrgEx(dc, 0, 0, nullptr);
  ::SetViewportOrgEx(dc, -::GetDeviceCaps(dc, PHYSICALOFFSETX),
                     -::GetDeviceCaps(dc, PHYSICALOFFSETY), nullptr);
}

DocumentStart GdiPrinter::StartDocument(std::string_view title) {
  const std::wstring name = WideFromUtf8(title);
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = name.c_str();
  ::SetLastError(ERROR_SUCCESS);
  ownsDocument_ = ::StartDocW(dc_.Get(), &document) > 0;
  const DWORD fault = ::GetLastError();
  if (ownsDocument_ || JoinDocument()) return DocumentStart::Started;
  return fault == ERROR_CANCELLED ? DocumentStart::CalledOff : DocumentStart::Unreachable;
}

// A page can only be started here where the caller has started a document.
bool GdiPrinter::JoinDocument() {
  pageIsOpen_ = dc_.IsBorrowed() && ::StartPage(dc_.Get()) > 0;
  return pageIsOpen_;
}

Surface& GdiPrinter::Page() {
  if (!pageIsOpen_) {
    if (::StartPage(dc_.Get()) <= 0) throw PrinterError("The printer takes no page.");
    pageIsOpen_ = true;
  }
  return *surface_;
}

void GdiPrinter::EjectPage() {
  Page();
  pageIsOpen_ = false;
  if (::EndPage(dc_.Get()) <= 0) throw PrinterError("The printer has not taken the page.");
}

void GdiPrinter::NewPage() {
  EjectPage();
  ++page_;
}

void GdiPrinter::EndDocument() {
  EjectPage();
  if (!std::exchange(ownsDocument_, false)) return;
  if (::EndDoc(dc_.Get()) <= 0) throw PrinterError("The printer has not taken the document.");
}

std::unique_ptr<Printer> MakeGdiPrinter(PrinterDc dc) {
  return dc ? std::make_unique<GdiPrinter>(std::move(dc)) : nullptr;
}

}  // namespace orvik
