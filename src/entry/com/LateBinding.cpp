#include "entry/com/LateBinding.h"

#include "entry/com/ComError.h"
#include "entry/com/DispatchCall.h"
#include "entry/com/TypeLibrary.h"
#include "entry/com/Wall.h"

namespace orvik::com {
namespace {

void RequireReserved(REFIID reserved) {
  if (reserved != IID_NULL) {
    throw ComError(DISP_E_UNKNOWNINTERFACE, "The reserved interface identifier is not null.");
  }
}

}  // namespace

ITypeInfo& LateBinding::Type() {
  if (!type_) type_ = LoadInterfaceType(iid_);
  return *type_.Get();
}

HRESULT LateBinding::GetTypeInfoCount(UINT* count) const {
  return Wall(iid_, kModuleSource, [&] {
    Require(count, "pctinfo");
    *count = 1;
  });
}

HRESULT LateBinding::GetTypeInfo(UINT index, ITypeInfo** type) {
  return Wall(iid_, kModuleSource, [&] {
    Require(type, "ppTInfo");
    *type = nullptr;
    if (index != 0) throw ComError(DISP_E_BADINDEX, "The object has one type description.");
    *type = &Type();
    (*type)->AddRef();
  });
}

HRESULT LateBinding::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids) {
  return Wall(iid_, kModuleSource, [&] {
    Require(names, "rgszNames");
    Require(ids, "rgDispId");
    RequireReserved(reserved);
    Check(::DispGetIDsOfNames(&Type(), names, count, ids), "The object has no such member.");
  });
}

HRESULT LateBinding::Invoke(REFIID reserved, void* object, const DispatchCall& call) {
  return Wall(iid_, kModuleSource, [&] {
    RequireReserved(reserved);
    CallByType(Type(), object, call);
  });
}

}  // namespace orvik::com
