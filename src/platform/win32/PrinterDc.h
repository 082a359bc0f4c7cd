// Device contexts of printers.
#pragma once

#include <windows.h>

#include <string_view>

namespace orvik {

// A printer's device context: our own, which is deleted with this, or one that the caller lends.
class PrinterDc {
 public:
  // The printer of this name (UTF-8), printing in portrait; empty where there is no such printer or
  // no connection with it.
  static PrinterDc Open(std::string_view name);

  // The user's default printer; empty where there is none.
  static PrinterDc OpenDefault();

  // Empty where the handle is not that of a printer's device context.
  static PrinterDc Borrow(HDC dc);

  PrinterDc() = default;
  PrinterDc(PrinterDc&& other) noexcept;
  PrinterDc& operator=(PrinterDc&& other) noexcept;
  ~PrinterDc();

  HDC Get() const { return dc_; }
  bool IsBorrowed() const { return isBorrowed_; }
  explicit operator bool() const { return dc_ != nullptr; }

 private:
  PrinterDc(HDC dc, bool isBorrowed) : dc_(dc), isBorrowed_(isBorrowed) {}

  HDC dc_ = nullptr;
  bool isBorrowed_ = false;
};

}  // namespace orvik
