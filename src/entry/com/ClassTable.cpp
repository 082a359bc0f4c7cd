#include "entry/com/ClassTable.h"

#include <StReuse.h>

#include "entry/com/ReuseObject.h"
#include "entry/com/StreamObject.h"
#include "entry/com/Wall.h"

namespace orvik::com {
namespace {

template <class Object>
HRESULT Create(REFIID iid, void** object) noexcept {
  try {
    auto* const created = new Object;
    const HRESULT result = created->QueryInterface(iid, object);
    created->Release();
    return result;
  } catch (...) {
    return ReportException(iid, L"StReuse");
  }
}

}  // namespace

CreateObject FindClass(REFCLSID clsid) {
  if (clsid == __uuidof(::clsIOStream)) return &Create<StreamObject>;
  if (clsid == __uuidof(::clsStReuse)) return &Create<ReuseObject>;
  return nullptr;
}

}  // namespace orvik::com
