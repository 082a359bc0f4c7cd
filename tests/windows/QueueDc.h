// The print server's queue as the system's own device context.
#pragma once

#include <windows.h>

#include <utility>

namespace orvik::test {

// A device context of the queue "PDF", at this resolution and on this paper.
class QueueDc {
 public:
  explicit QueueDc(short dpi = 300, short paper = DMPAPER_LETTER) {
    DEVMODEW mode{};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_PRINTQUALITY | DM_YRESOLUTION | DM_PAPERSIZE;
    mode.dmPrintQuality = dpi;
    mode.dmYResolution = dpi;
    mode.dmPaperSize = paper;
    dc_ = ::CreateDCW(L"WINSPOOL", L"PDF", nullptr, &mode);
  }
  ~QueueDc() { Delete(); }
  QueueDc(const QueueDc&) = delete;
  QueueDc& operator=(const QueueDc&) = delete;

  HDC Get() const { return dc_; }
  void Delete() {
    if (dc_) ::DeleteDC(std::exchange(dc_, nullptr));
  }

 private:
  HDC dc_ = nullptr;
};

}  // namespace orvik::test
