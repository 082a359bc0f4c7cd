// Makes the objects of one class.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include "entry/com/ClassTable.h"
#include "platform/win32/ModuleUse.h"
#include "platform/win32/ReferenceCount.h"

namespace orvik::com {

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(CreateObject create) : create_(create) {}
  ClassFactory(const ClassFactory&) = delete;
  ClassFactory& operator=(const ClassFactory&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return references_.Add(); }
  STDMETHODIMP_(ULONG) Release() override;
  // Aggregation is refused with CLASS_E_NOAGGREGATION.
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  STDMETHODIMP LockServer(BOOL lock) override;

 private:
  virtual ~ClassFactory() = default;

  CreateObject create_;
  ReferenceCount references_;
  ModuleHold module_;
};

}  // namespace orvik::com
