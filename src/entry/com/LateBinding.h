// IDispatch of one interface of the type library.
#pragma once

#include <ole2.h>

#include "platform/win32/ComPtr.h"

namespace orvik::com {

struct DispatchCall;

class LateBinding {
 public:
  explicit LateBinding(REFIID iid) : iid_(iid) {}

  HRESULT GetTypeInfoCount(UINT* count) const;
  HRESULT GetTypeInfo(UINT index, ITypeInfo** type);
  HRESULT GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids);
  HRESULT Invoke(REFIID reserved, void* object, const DispatchCall& call);

 private:
  // Read on first use: early-bound clients never pay for it.
  ITypeInfo& Type();

  IID iid_;
  ComPtr<ITypeInfo> type_;
};

}  // namespace orvik::com
