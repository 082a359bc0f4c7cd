#include "entry/com/ClassTable.h"

#include <StReuse.h>

#include <new>

#include "entry/com/StreamObject.h"

namespace orvik::com {
namespace {

template <class Object>
HRESULT Create(REFIID iid, void** object) {
  auto* const created = new (std::nothrow) Object;
  if (!created) return E_OUTOFMEMORY;
  const HRESULT result = created->QueryInterface(iid, object);
  created->Release();
  return result;
}

}  // namespace

CreateObject FindClass(REFCLSID clsid) {
  if (clsid == __uuidof(::clsIOStream)) return &Create<StreamObject>;
  return nullptr;
}

}  // namespace orvik::com
