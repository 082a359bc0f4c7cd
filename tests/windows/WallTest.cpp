// The wall: each kind of failure has its code and its sentence.
#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "base/RuntimeErrors.h"
#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/Wall.h"
#include "platform/win32/ComPtr.h"

namespace orvik::com {
namespace {

std::string Sentence() {
  ComPtr<IErrorInfo> error;
  if (::GetErrorInfo(0, error.Out()) != S_OK) return {};
  Bstr text;
  error->GetDescription(text.Out());
  return text.Utf8();
}

TEST(Wall, EveryFailureHasItsCodeAndItsSentence) {
  struct Case {
    std::function<void()> body;
    HRESULT code;
    const char* sentence;
  };
  const Case cases[] = {
      {[] { throw ComError(E_ACCESSDENIED, "Not here."); }, E_ACCESSDENIED, "Not here."},
      {[] { throw OverflowError(); }, DISP_E_OVERFLOW, "Overflow"},
      {[] { throw DivisionByZeroError(); }, DISP_E_DIVBYZERO, "Division by zero"},
      {[] { throw SubscriptError(); }, DISP_E_BADINDEX, "Subscript out of range"},
      {[] { throw std::bad_alloc(); }, E_OUTOFMEMORY, "Out of memory."},
      {[] { throw std::runtime_error("Überlauf"); }, E_FAIL, "Überlauf"},
      {[] { throw 7; }, E_UNEXPECTED, "Unexpected failure."},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Wall(IID_IUnknown, L"StReuse", c.body), c.code) << c.sentence;
    EXPECT_EQ(Sentence(), c.sentence);
  }
}

TEST(Wall, ASuccessLeavesNoErrorBehind) {
  Wall(IID_IUnknown, L"StReuse", [] { throw OverflowError(); });
  EXPECT_EQ(Wall(IID_IUnknown, L"StReuse", [] {}), S_OK);
  EXPECT_EQ(Sentence(), "");
}

}  // namespace
}  // namespace orvik::com
