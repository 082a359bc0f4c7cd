// The wall around every operation that a client calls: nothing is thrown through it.
#pragma once

#include <ole2.h>

namespace orvik::com {

// The origin of an error that belongs to no class.
inline constexpr const wchar_t* kModuleSource = L"StReuse";

// Maps the exception that is being handled to an HRESULT and leaves its sentence as the thread's
// error information, with `source` (a ProgID) as the origin and `iid` as the interface.
//   ComError            its own code
//   OverflowError       DISP_E_OVERFLOW
//   DivisionByZeroError DISP_E_DIVBYZERO
//   SubscriptError      DISP_E_BADINDEX
//   std::bad_alloc      E_OUTOFMEMORY
//   other               E_FAIL; E_UNEXPECTED for what is no std::exception
HRESULT ReportException(REFIID iid, const wchar_t* source) noexcept;

// Runs `body` and answers S_OK, or the code of what it threw. Error information of an earlier call
// is cleared first.
template <class Body>
HRESULT Wall(REFIID iid, const wchar_t* source, Body&& body) noexcept {
  ::SetErrorInfo(0, nullptr);
  try {
    body();
    return S_OK;
  } catch (...) {
    return ReportException(iid, source);
  }
}

}  // namespace orvik::com
