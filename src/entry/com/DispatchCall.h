// A late-bound call carried out on the early-bound interface that a type library describes.
#pragma once

#include <ole2.h>

namespace orvik::com {

// What IDispatch::Invoke was given.
struct DispatchCall {
  DISPID member = DISPID_UNKNOWN;
  LCID locale = 0;
  WORD flags = 0;
  DISPPARAMS* parameters = nullptr;
  VARIANT* result = nullptr;
  EXCEPINFO* exception = nullptr;
  UINT* badArgument = nullptr;
};

// Calls the member of `object`, whose interface `type` describes. Arguments may be given by value,
// by reference, as references to VARIANTs, and by name. Throws ComError with the codes of
// IDispatch::Invoke: DISP_E_MEMBERNOTFOUND, DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTFOUND,
// DISP_E_PARAMNOTOPTIONAL, DISP_E_TYPEMISMATCH and DISP_E_OVERFLOW (with the index of the
// argument), DISP_E_EXCEPTION for a method that failed, its reason in `exception`.
void CallByType(ITypeInfo& type, void* object, const DispatchCall& call);

}  // namespace orvik::com
