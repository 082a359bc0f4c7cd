// One argument of a late-bound call on its way in and back.
//
// Script hosts pass whatever their variable happens to hold, mostly as a reference to a VARIANT.
// The argument is copied into storage of exactly the parameter's type, the call works on the
// storage, and what came back is written to the caller's variable.
#pragma once

#include <ole2.h>

#include "entry/com/Variant.h"

namespace orvik::com {

struct ParameterType {
  VARTYPE type = VT_EMPTY;   // without VT_BYREF
  bool byReference = false;  // the method writes to it
};

// The type of a parameter as storage. Enumerations of this library hold 16 bits. Throws ComError
// for types that no method here has (structures, arrays).
ParameterType ParameterTypeOf(ITypeInfo& scope, const TYPEDESC& description);

class DispatchArgument {
 public:
  // Throws ComError: DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW when the value cannot become the
  // parameter's type, DISP_E_PARAMNOTOPTIONAL for an omitted argument, E_POINTER for a reference
  // to nothing, E_INVALIDARG for one that ends nowhere.
  DispatchArgument(VARIANTARG& given, ParameterType parameter, LCID locale);

  // The argument as the method takes it; it points into this object where it is a reference.
  VARIANTARG Passed();

  // Converts what came back to the type of the caller's variable. Throws ComError when it does not
  // fit. Nothing is written yet, so that a call with several results writes all of them or none.
  void PrepareReturn();
  // Writes it. A value that the method left alone stays as it was in the caller's variable, type
  // and precision included; only an Empty variable takes the parameter's type in any case. An
  // argument given by value drops the result.
  void Return() noexcept;

 private:
  bool IsReturned() const;

  VARIANTARG* target_;  // the caller's variable or typed reference
  bool writable_;
  ParameterType parameter_;
  LCID locale_;
  Variant before_;
  Variant storage_;
  Variant returned_;
};

}  // namespace orvik::com
