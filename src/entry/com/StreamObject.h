// The public class clsIOStream: the text stream of the core as a COM object.
#pragma once

#include <StReuse.h>

#include "entry/com/DispatchObject.h"
#include "stream/clsIOStream.h"

namespace orvik::com {

// The methods answer S_OK and the stream's own True or False. A missing place for a result or a
// by-reference argument is E_POINTER. A mode that is none of the enumeration's answers False.
// Arguments passed by reference keep their value where nothing was read.
class StreamObject final : public DispatchObject<IclsIOStream> {
 public:
  STDMETHODIMP ScanSingle(float* sVal, VARIANT_BOOL* Result) override;
  STDMETHODIMP OpenFile(BSTR strFileName, ::enumIOStreamMode Mode, VARIANT_BOOL* Result) override;
  STDMETHODIMP CloseFile(VARIANT_BOOL* Result) override;
  STDMETHODIMP IsOpened(VARIANT_BOOL* Result) override;
  STDMETHODIMP get_FileName(BSTR* Result) override;
  STDMETHODIMP ScanString(BSTR* TargetString, VARIANT_BOOL* Result) override;
  STDMETHODIMP WriteString(BSTR txt, VARIANT_BOOL* Result) override;
  STDMETHODIMP EndOfFile(VARIANT_BOOL* Result) override;
  STDMETHODIMP ScanInteger(short* i, VARIANT_BOOL* Result) override;
  STDMETHODIMP get_Buffer(BSTR* Result) override;

 private:
  ~StreamObject() override = default;

  // The operation behind the wall, its answer put into `Result`.
  template <class Operation>
  HRESULT Answer(VARIANT_BOOL* Result, Operation&& operation) noexcept;
  // The text behind the wall.
  template <class Operation>
  HRESULT AnswerText(BSTR* Result, Operation&& operation) noexcept;

  orvik::clsIOStream stream_;
};

}  // namespace orvik::com
