#include "entry/com/ClassFactory.h"

namespace orvik::com {

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
  *object = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
  const ULONG left = references_.Remove();
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  return create_(iid, object);
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
  if (lock) {
    ModuleUse::Add();
  } else {
    ModuleUse::Remove();
  }
  return S_OK;
}

}  // namespace orvik::com
