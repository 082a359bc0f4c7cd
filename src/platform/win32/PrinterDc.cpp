#include "platform/win32/PrinterDc.h"

#include <winspool.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/WideText.h"

namespace orvik {
namespace {

class SpoolerHandle {
 public:
  explicit SpoolerHandle(std::wstring& name) {
    if (!::OpenPrinterW(name.data(), &handle_, nullptr)) handle_ = nullptr;
  }
  ~SpoolerHandle() {
    if (handle_) ::ClosePrinter(handle_);
  }
  SpoolerHandle(const SpoolerHandle&) = delete;
  SpoolerHandle& operator=(const SpoolerHandle&) = delete;

  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_ = nullptr;
};

// A DEVMODE with the driver's private data behind it.
using DeviceMode = std::vector<std::byte>;

// The settings, made consistent by the driver; unchanged where it fails.
DeviceMode Merged(DeviceMode wanted, HANDLE printer, std::wstring& name) {
  DeviceMode merged(wanted.size());
  const LONG answer = ::DocumentPropertiesW(
      nullptr, printer, name.data(), reinterpret_cast<DEVMODEW*>(merged.data()),
      reinterpret_cast<DEVMODEW*>(wanted.data()), DM_IN_BUFFER | DM_OUT_BUFFER);
  return answer == IDOK ? merged : wanted;
}

// The user's settings of the printer, in portrait; empty where the driver does not report them.
DeviceMode PortraitMode(std::wstring& name) {
  const SpoolerHandle printer(name);
  if (!printer.Get()) return {};
  const LONG size = ::DocumentPropertiesW(nullptr, printer.Get(), name.data(), nullptr, nullptr, 0);
  if (size < static_cast<LONG>(sizeof(DEVMODEW))) return {};
  DeviceMode bytes(static_cast<std::size_t>(size));
  auto* mode = reinterpret_cast<DEVMODEW*>(bytes.data());
  if (::DocumentPropertiesW(nullptr, printer.Get(), name.data(), mode, nullptr, DM_OUT_BUFFER) !=
      IDOK) {
    return {};
  }
  mode->dmFields |= DM_ORIENTATION;
  mode->dmOrientation = DMORIENT_PORTRAIT;
  return Merged(std::move(bytes), printer.Get(), name);
}

std::wstring DefaultPrinterName() {
  DWORD length = 0;
  ::GetDefaultPrinterW(nullptr, &length);
  std::wstring name(length, L'\0');
  if (length == 0 || !::GetDefaultPrinterW(name.data(), &length)) return {};
  name.resize(length - 1);  // without the NUL
  return name;
}

HDC OpenDc(std::wstring name) {
  if (name.empty()) return nullptr;
  const DeviceMode mode = PortraitMode(name);
  const auto* settings = mode.empty() ? nullptr : reinterpret_cast<const DEVMODEW*>(mode.data());
  return ::CreateDCW(L"WINSPOOL", name.c_str(), nullptr, settings);
}

bool IsPrinter(HDC dc) {
  if (::GetObjectType(dc) != OBJ_DC) return false;
  const int technology = ::GetDeviceCaps(dc, TECHNOLOGY);
  return technology == DT_RASPRINTER || technology == DT_PLOTTER;
}

}  // namespace

PrinterDc PrinterDc::Open(std::string_view name) {
  return {OpenDc(WideFromUtf8(name)), false};
}

PrinterDc PrinterDc::OpenDefault() {
  return {OpenDc(DefaultPrinterName()), false};
}

PrinterDc PrinterDc::Borrow(HDC dc) {
  return {dc && IsPrinter(dc) ? dc : nullptr, true};
}

PrinterDc::PrinterDc(PrinterDc&& other) noexcept
    : dc_(std::exchange(other.dc_, nullptr)), isBorrowed_(other.isBorrowed_) {}

PrinterDc& PrinterDc::operator=(PrinterDc&& other) noexcept {
  std::swap(dc_, other.dc_);
  std::swap(isBorrowed_, other.isBorrowed_);
  return *this;
}

PrinterDc::~PrinterDc() {
  if (dc_ && !isBorrowed_) ::DeleteDC(dc_);
}

}  // namespace orvik
