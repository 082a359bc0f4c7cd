// The public class clsStReuse: the module's entry object as a COM object.
#pragma once

#include <StReuse.h>

#include "entry/clsStReuse.h"
#include "entry/com/DispatchObject.h"

namespace orvik::com {

// While the window is open, calls that need it fail with the code of ERROR_BUSY; on another thread
// than the window's with RPC_E_WRONG_THREAD.
class ReuseObject final : public DispatchObject<IclsStReuse> {
 public:
  ReuseObject();

  STDMETHODIMP Print_Remote(VARIANT MyPrinter, short Mode, BSTR ParamString1,
                            BSTR ParamString2) override;
  // The texts are replaced only where the user saved.
  STDMETHODIMP Show(short Mode, BSTR* ParamString1, BSTR* ParamString2, BSTR* ParamString3,
                    short* Result) override;
  STDMETHODIMP MakeDirectory(BSTR Path, VARIANT_BOOL* Result) override;

 private:
  ~ReuseObject() override = default;

  orvik::clsStReuse entry_;
};

}  // namespace orvik::com
