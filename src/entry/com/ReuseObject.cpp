#include "entry/com/ReuseObject.h"

#include <string>

#include "entry/ReuseModule.h"
#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/LoadedModule.h"
#include "entry/com/PrinterArgument.h"
#include "entry/com/Wall.h"

namespace orvik::com {
namespace {

constexpr const wchar_t* kReuseSource = L"StReuse.clsStReuse";

// A text that goes in and comes back.
class InOutText {
 public:
  InOutText(BSTR* place, const char* name) : place_(place) {
    Require(place, name);
    before_ = Utf8FromBstr(*place);
    text = before_;
  }

  // Puts the text into the caller's place if it is another one now.
  void Return() {
    if (text == before_) return;
    Bstr changed(text);
    ::SysFreeString(*place_);
    *place_ = changed.Release();
  }

  std::string text;

 private:
  BSTR* place_;
  std::string before_;
};

// What the core refuses has codes of its own at this border.
template <class Operation>
void WithWindow(Operation&& operation) {
  try {
    operation();
  } catch (const WindowBusyError& error) {
    throw ComError(HRESULT_FROM_WIN32(ERROR_BUSY), error.what());
  } catch (const WindowThreadError& error) {
    throw ComError(RPC_E_WRONG_THREAD, error.what());
  }
}

}  // namespace

ReuseObject::ReuseObject() : entry_(LoadedReuseModule()) {}

STDMETHODIMP ReuseObject::Show(short Mode, BSTR* ParamString1, BSTR* ParamString2,
                               BSTR* ParamString3, short* Result) {
  const ComPtr<IclsStReuse> self(this);  // a host may let go of the object while the window is open
  return Wall(__uuidof(IclsStReuse), kReuseSource, [&] {
    Require(Result, "Result");
    *Result = 0;
    InOutText p1(ParamString1, "ParamString1");
    InOutText p2(ParamString2, "ParamString2");
    InOutText p3(ParamString3, "ParamString3");
    WithWindow([&] { *Result = entry_.Show(Mode, p1.text, p2.text, p3.text); });
    p2.Return();
    p3.Return();
  });
}

STDMETHODIMP ReuseObject::Print_Remote(VARIANT MyPrinter, short Mode, BSTR ParamString1,
                                       BSTR ParamString2) {
  const ComPtr<IclsStReuse> self(this);
  return Wall(__uuidof(IclsStReuse), kReuseSource, [&] {
    const auto printer = MakePrinter(MyPrinter);
    WithWindow([&] {
      entry_.Print_Remote(printer.get(), Mode, Utf8FromBstr(ParamString1),
                          Utf8FromBstr(ParamString2));
    });
  });
}

STDMETHODIMP ReuseObject::MakeDirectory(BSTR Path, VARIANT_BOOL* Result) {
  return Wall(__uuidof(IclsStReuse), kReuseSource, [&] {
    Require(Result, "Result");
    *Result = VARIANT_FALSE;
    *Result = entry_.MakeDirectory(Utf8FromBstr(Path)) ? VARIANT_TRUE : VARIANT_FALSE;
  });
}

}  // namespace orvik::com
