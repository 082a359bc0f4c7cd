#include "entry/com/Wall.h"

#include <exception>
#include <new>
#include <string_view>

#include "base/RuntimeErrors.h"
#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "platform/win32/ComPtr.h"

namespace orvik::com {
namespace {

// Error information is a courtesy: where it cannot be made, the code alone tells.
void LeaveErrorInfo(REFIID iid, const wchar_t* source, std::string_view sentence) noexcept {
  try {
    Bstr description(sentence);
    Bstr origin{std::wstring_view(source)};
    ComPtr<ICreateErrorInfo> error;
    Check(::CreateErrorInfo(error.Out()), "");
    error->SetGUID(iid);
    error->SetSource(origin.Get());
    error->SetDescription(description.Get());
    ComPtr<IErrorInfo> info;
    Check(error->QueryInterface(IID_IErrorInfo, info.OutVoid()), "");
    ::SetErrorInfo(0, info.Get());
  } catch (...) {
    ::SetErrorInfo(0, nullptr);
  }
}

}  // namespace

HRESULT ReportException(REFIID iid, const wchar_t* source) noexcept {
  const auto report = [&](HRESULT code, std::string_view sentence) {
    LeaveErrorInfo(iid, source, sentence);
    return code;
  };
  try {
    throw;
  } catch (const ComError& error) {
    return report(error.Code(), error.what());
  } catch (const OverflowError& error) {
    return report(DISP_E_OVERFLOW, error.what());
  } catch (const DivisionByZeroError& error) {
    return report(DISP_E_DIVBYZERO, error.what());
  } catch (const SubscriptError& error) {
    return report(DISP_E_BADINDEX, error.what());
  } catch (const std::bad_alloc&) {
    return report(E_OUTOFMEMORY, "Out of memory.");
  } catch (const std::exception& error) {
    return report(E_FAIL, error.what());
  } catch (...) {
    return report(E_UNEXPECTED, "Unexpected failure.");
  }
}

}  // namespace orvik::com
