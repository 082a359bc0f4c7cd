// A late-bound call of a method that fails.
#include <StReuse.h>
#include <gtest/gtest.h>

#include "base/RuntimeErrors.h"
#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/DispatchCall.h"
#include "entry/com/DispatchObject.h"
#include "entry/com/Variant.h"
#include "entry/com/Wall.h"
#include "windows/LateClient.h"
#include "windows/Server.h"

namespace orvik::test {
namespace {

using com::Bstr;

// Every operation that can change an argument does so and then fails.
class FailingStream final : public com::DispatchObject<IclsIOStream> {
 public:
  STDMETHODIMP ScanSingle(float* sVal, VARIANT_BOOL*) override {
    *sVal = 5;
    return Fail();
  }
  STDMETHODIMP OpenFile(BSTR, ::enumIOStreamMode, VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP CloseFile(VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP IsOpened(VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP get_FileName(BSTR*) override { return Fail(); }
  STDMETHODIMP ScanString(BSTR*, VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP WriteString(BSTR, VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP EndOfFile(VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP ScanInteger(short*, VARIANT_BOOL*) override { return Fail(); }
  STDMETHODIMP get_Buffer(BSTR*) override { return Fail(); }

 private:
  static HRESULT Fail() {
    return com::Wall(__uuidof(IclsIOStream), L"StReuse.test", [] { throw OverflowError(); });
  }
};

class DispatchCallTest : public testing::Test {
 protected:
  void SetUp() override {
    ComPtr<ITypeLib> library;
    ASSERT_EQ(::LoadTypeLibEx(BuildPath(L"StReuse.dll").c_str(), REGKIND_NONE, library.Out()),
              S_OK);
    ASSERT_EQ(library->GetTypeInfoOfGuid(__uuidof(IclsIOStream), type_.Out()), S_OK);
  }

  // Calls the member with one argument; the code of the failure.
  HRESULT CallFailing(DISPID member, VARIANT argument, EXCEPINFO& exception) {
    DISPPARAMS parameters{&argument, nullptr, 1, 0};
    com::Variant result;
    com::DispatchCall call;
    call.member = member;
    call.flags = DISPATCH_METHOD;
    call.parameters = &parameters;
    call.result = result.Get();
    call.exception = &exception;
    try {
      com::CallByType(*type_.Get(), static_cast<IclsIOStream*>(stream_.Get()), call);
    } catch (const com::ComError& error) {
      EXPECT_EQ(result.Type(), VT_EMPTY);
      return error.Code();
    }
    return S_OK;
  }

  const Apartment apartment_;
  ComPtr<ITypeInfo> type_;
  ComPtr<IclsIOStream> stream_ = ComPtr<IclsIOStream>::Adopt(new FailingStream);
};

TEST_F(DispatchCallTest, AFailedMethodIsAnExceptionWithItsSentence) {
  EXCEPINFO exception{};
  const Bstr text("text");
  EXPECT_EQ(CallFailing(7, Given(text), exception), DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, DISP_E_OVERFLOW);
  EXPECT_EQ(com::Utf8FromBstr(exception.bstrDescription), "Overflow");
  EXPECT_EQ(com::Utf8FromBstr(exception.bstrSource), "StReuse.test");
  ::SysFreeString(exception.bstrDescription);
  ::SysFreeString(exception.bstrSource);
  ::SysFreeString(exception.bstrHelpFile);
}

TEST_F(DispatchCallTest, AFailedMethodChangesNoArgument) {
  EXCEPINFO exception{};
  double value = 3;
  EXPECT_EQ(CallFailing(1, Reference(VT_R8, &value), exception), DISP_E_EXCEPTION);
  EXPECT_EQ(value, 3);
  ::SysFreeString(exception.bstrDescription);
  ::SysFreeString(exception.bstrSource);
  ::SysFreeString(exception.bstrHelpFile);
}

TEST_F(DispatchCallTest, AnArgumentThatRefersToItselfIsRefused) {
  EXCEPINFO exception{};
  VARIANT itself{};
  itself = Reference(itself);
  EXPECT_EQ(CallFailing(1, itself, exception), E_INVALIDARG);
  VARIANT other = Reference(itself);
  itself = Reference(other);
  EXPECT_EQ(CallFailing(1, itself, exception), E_INVALIDARG) << "by way of another one";
}

TEST_F(DispatchCallTest, AReferenceToAReferenceIsFollowed) {
  EXCEPINFO exception{};
  VARIANT value = Given(VT_R4, 3.0F);
  VARIANT first = Reference(value);
  VARIANT second = Reference(first);
  EXPECT_EQ(CallFailing(1, Reference(second), exception), DISP_E_EXCEPTION) << "it was called";
  ::SysFreeString(exception.bstrDescription);
  ::SysFreeString(exception.bstrSource);
  ::SysFreeString(exception.bstrHelpFile);
}

}  // namespace
}  // namespace orvik::test
