// What every public object has in common: its reference count, its interfaces, late binding and
// error information.
#pragma once

#include <ole2.h>

#include "entry/com/DispatchCall.h"
#include "entry/com/LateBinding.h"
#include "platform/win32/ModuleUse.h"
#include "platform/win32/ReferenceCount.h"

namespace orvik::com {

// `Interface` is the object's dual interface.
template <class Interface>
class DispatchObject : public Interface, public ISupportErrorInfo {
 public:
  DispatchObject() = default;
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface)) {
      *object = static_cast<Interface*>(this);
    } else if (iid == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = references_.Remove();
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    return lateBinding_.GetTypeInfoCount(count);
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** type) override {
    return lateBinding_.GetTypeInfo(index, type);
  }
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                             DISPID* ids) override {
    return lateBinding_.GetIDsOfNames(reserved, names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* badArgument) override {
    return lateBinding_.Invoke(reserved, static_cast<Interface*>(this),
                               {member, locale, flags, parameters, result, exception, badArgument});
  }

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
    return iid == __uuidof(Interface) ? S_OK : S_FALSE;
  }

 protected:
  virtual ~DispatchObject() = default;  // an object goes with its last reference

 private:
  ReferenceCount references_;
  ModuleHold module_;
  LateBinding lateBinding_{__uuidof(Interface)};
};

}  // namespace orvik::com
