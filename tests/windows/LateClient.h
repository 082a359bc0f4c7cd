// A client that knows the object's members by name only.
#pragma once

#include <ole2.h>

#include <cstring>
#include <utility>
#include <vector>

#include "entry/com/Bstr.h"
#include "entry/com/Variant.h"
#include "platform/win32/ComPtr.h"

namespace orvik::test {

// Values and references as a caller passes them. The caller keeps what they point to.
template <class Value>
VARIANT Given(VARTYPE type, Value value) {
  VARIANT variant{};
  variant.vt = type;
  static_assert(sizeof value <= sizeof variant.llVal);
  std::memcpy(&variant.llVal, &value, sizeof value);
  return variant;
}
inline VARIANT Given(const com::Bstr& text) {
  return Given(VT_BSTR, text.Get());
}
inline VARIANT Reference(VARTYPE type, void* place) {
  return Given(static_cast<VARTYPE>(VT_BYREF | type), place);
}
inline VARIANT Reference(VARIANT& variable) {
  return Reference(VT_VARIANT, &variable);
}

struct LateAnswer {
  HRESULT code = S_OK;
  UINT badArgument = 99;
  com::Variant value;

  bool IsTrue() const { return value.Type() == VT_BOOL && value->boolVal == VARIANT_TRUE; }
  bool IsFalse() const { return value.Type() == VT_BOOL && value->boolVal == VARIANT_FALSE; }
};

class LateClient {
 public:
  explicit LateClient(IUnknown& object) { object.QueryInterface(IID_IDispatch, object_.OutVoid()); }

  IDispatch* operator->() const { return object_.Get(); }

  DISPID Find(const wchar_t* name) const {
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<wchar_t*>(name);
    object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_NEUTRAL, &id);
    return id;
  }

  // Calls as script hosts do. The arguments stand in the order of the declaration.
  void Call(LateAnswer& answer, const wchar_t* name, std::vector<VARIANT> arguments,
            WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET) const {
    CallNamed(answer, name, {}, std::move(arguments), flags);
  }

  // The last arguments go by name.
  void CallNamed(LateAnswer& answer, const wchar_t* name, std::vector<DISPID> names,
                 std::vector<VARIANT> arguments,
                 WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET) const {
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    std::vector<DISPID> reversedNames(names.rbegin(), names.rend());
    DISPPARAMS parameters{reversed.data(), reversedNames.data(), static_cast<UINT>(reversed.size()),
                          static_cast<UINT>(names.size())};
    answer.badArgument = 99;
    answer.code = object_->Invoke(Find(name), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                  answer.value.Out(), nullptr, &answer.badArgument);
  }

 private:
  ComPtr<IDispatch> object_;
};

}  // namespace orvik::test
