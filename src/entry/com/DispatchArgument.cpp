#include "entry/com/DispatchArgument.h"

#include <cstring>
#include <utility>

#include "entry/com/ComError.h"
#include "platform/win32/ComPtr.h"

namespace orvik::com {
namespace {

// Bytes of a plain value of this type, 0 for a type that owns something or has no place of its own.
std::size_t PlainSize(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    default:
      return 0;
  }
}

bool SameText(BSTR a, BSTR b) {
  const UINT size = ::SysStringByteLen(a);
  return size == ::SysStringByteLen(b) && (size == 0 || std::memcmp(a, b, size) == 0);
}

// Both are of the same type. Values that cannot be compared bit by bit count as different.
bool SameValue(const VARIANT& a, const VARIANT& b) {
  if (a.vt == VT_BSTR) return SameText(a.bstrVal, b.bstrVal);
  const std::size_t size = PlainSize(a.vt);
  return size > 0 && std::memcmp(&a.llVal, &b.llVal, size) == 0;
}

// The two library calls below read their source only, whatever the header says.
VARIANT* Source(const VARIANT& value) {
  return const_cast<VARIANT*>(&value);
}

void Copy(Variant& to, const VARIANT& from) {
  Check(::VariantCopyInd(to.Out(), Source(from)), "The argument cannot be copied.");
}

void Convert(Variant& to, const VARIANT& from, VARTYPE type, LCID locale) {
  if (type == VT_VARIANT) return Copy(to, from);
  Check(::VariantChangeTypeEx(to.Out(), Source(from), locale, 0, type),
        "The argument is not of the right type.");
}

// Script hosts nest two or three references. A chain without an end refers to itself.
constexpr int kMostReferences = 16;

// Follows references to VARIANTs down to the variable itself.
VARIANTARG* FindVariable(VARIANTARG& given) {
  VARIANTARG* variable = &given;
  for (int depth = 0; variable && variable->vt == (VT_BYREF | VT_VARIANT); ++depth) {
    if (depth == kMostReferences) throw ComError(E_INVALIDARG, "An argument refers to itself.");
    variable = variable->pvarVal;
  }
  Require(variable, "passed by reference");
  if (variable->vt & VT_BYREF) Require(variable->byref, "passed by reference");
  return variable;
}

bool IsOmitted(const VARIANT& value) {
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

void StoreThroughReference(void* place, VARIANT& value) noexcept {
  if (value.vt == VT_BSTR) {
    ::SysFreeString(*static_cast<BSTR*>(place));
    *static_cast<BSTR*>(place) = std::exchange(value.bstrVal, nullptr);
  } else if (value.vt == VT_DECIMAL) {
    *static_cast<DECIMAL*>(place) = value.decVal;
    static_cast<DECIMAL*>(place)->wReserved = 0;  // the tag of the variant lies here
  } else {
    std::memcpy(place, &value.llVal, PlainSize(value.vt));
  }
}

ParameterType ResolveUserDefined(ITypeInfo& scope, HREFTYPE reference) {
  ComPtr<ITypeInfo> type;
  Check(scope.GetRefTypeInfo(reference, type.Out()), "A parameter's type cannot be read.");
  TYPEATTR* attributes = nullptr;
  Check(type->GetTypeAttr(&attributes), "A parameter's type cannot be read.");
  const TYPEKIND kind = attributes->typekind;
  const TYPEDESC alias = attributes->tdescAlias;
  type->ReleaseTypeAttr(attributes);
  if (kind == TKIND_ENUM) return {VT_I2, false};
  if (kind == TKIND_ALIAS) return ParameterTypeOf(*type.Get(), alias);
  throw ComError(DISP_E_BADVARTYPE, "A parameter has a type that late binding does not carry.");
}

}  // namespace

ParameterType ParameterTypeOf(ITypeInfo& scope, const TYPEDESC& description) {
  if (description.vt == VT_USERDEFINED) return ResolveUserDefined(scope, description.hreftype);
  if (description.vt == VT_PTR) {
    const ParameterType pointed = ParameterTypeOf(scope, *description.lptdesc);
    if (!pointed.byReference) return {pointed.type, true};
  } else if (PlainSize(description.vt) > 0 || description.vt == VT_BSTR ||
             description.vt == VT_DECIMAL || description.vt == VT_VARIANT) {
    return {description.vt, false};
  }
  throw ComError(DISP_E_BADVARTYPE, "A parameter has a type that late binding does not carry.");
}

DispatchArgument::DispatchArgument(VARIANTARG& given, ParameterType parameter, LCID locale)
    : target_(FindVariable(given)),
      writable_(target_ != &given || (given.vt & VT_BYREF) != 0),
      parameter_(parameter),
      locale_(locale) {
  Variant value;
  Copy(value, *target_);
  if (IsOmitted(*value.Get()) && parameter.type != VT_VARIANT) {
    throw ComError(DISP_E_PARAMNOTOPTIONAL, "An argument is missing.");
  }
  Convert(storage_, *value.Get(), parameter.type, locale);
  Copy(before_, *storage_.Get());
}

VARIANTARG DispatchArgument::Passed() {
  if (!parameter_.byReference) return *storage_.Get();
  VARIANTARG passed;
  ::VariantInit(&passed);
  passed.vt = static_cast<VARTYPE>(VT_BYREF | parameter_.type);
  if (parameter_.type == VT_VARIANT) {
    passed.pvarVal = storage_.Get();
  } else if (parameter_.type == VT_DECIMAL) {
    passed.pdecVal = &storage_->decVal;
  } else {
    passed.byref = &storage_->llVal;
  }
  return passed;
}

bool DispatchArgument::IsReturned() const {
  if (!parameter_.byReference || !writable_) return false;
  return target_->vt == VT_EMPTY || storage_.Type() != before_.Type() ||
         !SameValue(*storage_.Get(), *before_.Get());
}

void DispatchArgument::PrepareReturn() {
  if (!IsReturned()) return;
  const bool typed = (target_->vt & VT_BYREF) != 0;
  Convert(returned_, *storage_.Get(),
          typed ? static_cast<VARTYPE>(target_->vt & ~VT_BYREF) : parameter_.type, locale_);
}

void DispatchArgument::Return() noexcept {
  if (!IsReturned()) return;
  if (target_->vt & VT_BYREF) {
    StoreThroughReference(target_->byref, *returned_.Get());
  } else {
    ::VariantClear(target_);
    *target_ = std::exchange(*returned_.Get(), VARIANT{});
  }
}

}  // namespace orvik::com
