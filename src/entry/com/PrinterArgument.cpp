#include "entry/com/PrinterArgument.h"

#include <utility>

#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/Variant.h"
#include "platform/win32/ComPtr.h"
#include "platform/win32/GdiPrinter.h"

namespace orvik::com {
namespace {

std::unique_ptr<Printer> NoPrinterForm() {
  throw ComError(DISP_E_TYPEMISMATCH,
                 "The printer must be a name, a device context, an object with hDC or DeviceName, "
                 "or nothing for the default printer.");
}

std::unique_ptr<Printer> PrinterOfName(const VARIANT& name) {
  const std::string text = Utf8FromBstr(name.bstrVal);
  return MakeGdiPrinter(text.empty() ? PrinterDc::OpenDefault() : PrinterDc::Open(text));
}

// Handles have 32 bits that count; scripts pass them signed or not.
HDC HandleOf(const VARIANT& number) {
  Variant whole;
  if (FAILED(::VariantChangeType(whole.Get(), const_cast<VARIANT*>(&number), 0, VT_I8)))
    return nullptr;
  return reinterpret_cast<HDC>(
      static_cast<LONG_PTR>(static_cast<LONG>(static_cast<ULONGLONG>(whole->llVal))));
}

bool IsNumber(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_I8:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UI8:
    case VT_UINT:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL:
      return true;
    default:
      return false;
  }
}

bool IsNothing(const VARIANT& given) {
  const bool leftOut = given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND;
  const bool nothing = (given.vt == VT_DISPATCH || given.vt == VT_UNKNOWN) && !given.punkVal;
  return given.vt == VT_EMPTY || given.vt == VT_NULL || leftOut || nothing;
}

// The property's value; Empty where the object has none of this name.
void GetProperty(IDispatch& object, const wchar_t* name, Variant& value) {
  LPOLESTR names = const_cast<LPOLESTR>(name);
  DISPID id = DISPID_UNKNOWN;
  if (FAILED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return;
  DISPPARAMS none{};
  if (FAILED(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                           value.Out(), nullptr, nullptr))) {
    value.Out();
  }
}

// An object without a name of a printer means no printer at all: the default one would surprise.
std::unique_ptr<Printer> PrinterOfObject(IDispatch& object) {
  Variant number;
  GetProperty(object, L"hDC", number);
  const HDC handle = IsNumber(number.Type()) ? HandleOf(*number.Get()) : nullptr;
  if (auto dc = PrinterDc::Borrow(handle)) return MakeGdiPrinter(std::move(dc));
  Variant name;
  GetProperty(object, L"DeviceName", name);
  const bool hasName = name.Type() == VT_BSTR && ::SysStringLen(name->bstrVal) > 0;
  if (hasName) return PrinterOfName(*name.Get());
  return handle ? nullptr : NoPrinterForm();
}

std::unique_ptr<Printer> PrinterOfUnknown(IUnknown& object) {
  ComPtr<IDispatch> properties;
  if (FAILED(object.QueryInterface(IID_IDispatch, properties.OutVoid()))) return NoPrinterForm();
  return PrinterOfObject(*properties.Get());
}

}  // namespace

std::unique_ptr<Printer> MakePrinter(const VARIANT& given) {
  Variant copy;
  Check(::VariantCopyInd(copy.Get(), const_cast<VARIANT*>(&given)),
        "The printer argument cannot be read.");
  const VARIANT& value = *copy.Get();
  if (IsNothing(value)) return MakeGdiPrinter(PrinterDc::OpenDefault());
  if (value.vt == VT_BSTR) return PrinterOfName(value);
  if (IsNumber(value.vt)) return MakeGdiPrinter(PrinterDc::Borrow(HandleOf(value)));
  if (value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN) return PrinterOfUnknown(*value.punkVal);
  return NoPrinterForm();
}

}  // namespace orvik::com
