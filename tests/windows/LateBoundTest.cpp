// The stream through IDispatch, as script hosts use it.
#include "windows/LateClient.h"
#include "windows/StreamClientTest.h"

namespace orvik::test {
namespace {

using com::Bstr;
using com::Variant;

class LateBoundTest : public StreamClientTest {
 protected:
  LateClient Client() { return LateClient(*stream_.Get()); }

  // A buffer with this text is open for reading.
  void Read(const char* text) { ASSERT_TRUE(OpenFile(text, AsciiBufferInput)); }
};

TEST_P(LateBoundTest, EveryOperationIsFoundByNameInAnyCase) {
  const LateClient client = Client();
  const wchar_t* const names[] = {L"ScanSingle",  L"OpenFile",   L"CloseFile",   L"IsOpened",
                                  L"FileName",    L"ScanString", L"WriteString", L"EndOfFile",
                                  L"ScanInteger", L"Buffer"};
  DISPID expected = 0;
  for (const wchar_t* name : names) EXPECT_EQ(client.Find(name), ++expected) << expected;
  EXPECT_EQ(client.Find(L"openFILE"), 2);
}

TEST_P(LateBoundTest, EveryOperationAnswers) {
  const LateClient client = Client();
  LateAnswer answer;
  client.Call(answer, L"OpenFile", {Given(Bstr("")), Given<short>(VT_I2, AsciiBufferOutput)});
  EXPECT_TRUE(answer.IsTrue());
  client.Call(answer, L"WriteString", {Given(Bstr("1.5"))});
  EXPECT_TRUE(answer.IsTrue());
  client.Call(answer, L"IsOpened", {});
  EXPECT_TRUE(answer.IsTrue());
  client.Call(answer, L"EndOfFile", {});
  EXPECT_TRUE(answer.IsTrue());
  client.Call(answer, L"Buffer", {});
  ASSERT_EQ(answer.value.Type(), VT_BSTR);
  EXPECT_EQ(com::Utf8FromBstr(answer.value->bstrVal), "1.5\r\n");
  client.Call(answer, L"FileName", {});
  ASSERT_EQ(answer.value.Type(), VT_BSTR);
  EXPECT_EQ(com::Utf8FromBstr(answer.value->bstrVal), "");
  client.Call(answer, L"CloseFile", {});
  EXPECT_TRUE(answer.IsTrue());
}

TEST_P(LateBoundTest, AnEmptyVariableTakesWhatWasRead) {
  Read("12.5\r\n-7\r\na line");
  const LateClient client = Client();
  LateAnswer answer;
  Variant single;
  client.Call(answer, L"ScanSingle", {Reference(*single.Get())});
  EXPECT_TRUE(answer.IsTrue());
  ASSERT_EQ(single.Type(), VT_R4);
  EXPECT_EQ(single->fltVal, 12.5F);
  Variant whole;
  client.Call(answer, L"ScanInteger", {Reference(*whole.Get())});
  EXPECT_TRUE(answer.IsTrue());
  ASSERT_EQ(whole.Type(), VT_I2);
  EXPECT_EQ(whole->iVal, -7);
  Variant line;
  client.Call(answer, L"ScanString", {Reference(*line.Get())});
  EXPECT_TRUE(answer.IsTrue());
  ASSERT_EQ(line.Type(), VT_BSTR);
  EXPECT_EQ(com::Utf8FromBstr(line->bstrVal), "a line");
}

TEST_P(LateBoundTest, AVariableOfAnyTypeLosesNothingOfWhatWasRead) {
  // An untyped variable that happens to hold a whole number must not round the fraction away.
  const Bstr text("7");
  const VARIANT before[] = {Given<short>(VT_I2, 7), Given<long>(VT_I4, 7), Given(VT_R8, 7.0),
                            Given<VARIANT_BOOL>(VT_BOOL, VARIANT_TRUE), Given(text)};
  for (VARIANT start : before) {
    Read("2.5");
    Variant variable;
    ::VariantCopy(variable.Get(), &start);
    LateAnswer answer;
    Client().Call(answer, L"ScanSingle", {Reference(*variable.Get())});
    EXPECT_TRUE(answer.IsTrue()) << "type " << start.vt;
    ASSERT_EQ(variable.Type(), VT_R4) << "type " << start.vt;
    EXPECT_EQ(variable->fltVal, 2.5F) << "type " << start.vt;
  }
}

TEST_P(LateBoundTest, AReferenceToAReferenceIsFollowed) {
  Read("2.5");
  Variant variable;
  VARIANT inner = Reference(*variable.Get());
  LateAnswer answer;
  Client().Call(answer, L"ScanSingle", {Reference(inner)});
  EXPECT_TRUE(answer.IsTrue());
  ASSERT_EQ(variable.Type(), VT_R4);
  EXPECT_EQ(variable->fltVal, 2.5F);
}

TEST_P(LateBoundTest, ATypedReferenceReceivesItsOwnType) {
  const LateClient client = Client();
  LateAnswer answer;
  const auto scan = [&](VARTYPE type, void* place) {
    Read("3.5");
    client.Call(answer, L"ScanSingle", {Reference(type, place)});
    EXPECT_TRUE(answer.IsTrue()) << "type " << type;
  };
  float r4 = 1;
  scan(VT_R4, &r4);
  EXPECT_EQ(r4, 3.5F);
  double r8 = 1;
  scan(VT_R8, &r8);
  EXPECT_EQ(r8, 3.5);
  long i4 = 1;
  scan(VT_I4, &i4);
  EXPECT_EQ(i4, 4);  // halves to even, as everywhere in Automation
  short i2 = 1;
  scan(VT_I2, &i2);
  EXPECT_EQ(i2, 4);
  CY cy{};
  scan(VT_CY, &cy);
  EXPECT_EQ(cy.int64, 35000);
  BSTR text = Bstr("1").Release();
  scan(VT_BSTR, &text);
  double parsed = 0;
  EXPECT_EQ(::VarR8FromStr(text, LOCALE_USER_DEFAULT, 0, &parsed), S_OK);
  EXPECT_EQ(parsed, 3.5);
  ::SysFreeString(text);
  DECIMAL decimal{};
  scan(VT_DECIMAL, &decimal);
  EXPECT_EQ(::VarR8FromDec(&decimal, &parsed), S_OK);
  EXPECT_EQ(parsed, 3.5);
}

TEST_P(LateBoundTest, AValueThatWasNotReadLeavesTheVariableAsItWas) {
  Read("letters\r\nmore letters");
  double precise = 0.1;  // a single cannot hold it
  LateAnswer answer;
  Client().Call(answer, L"ScanSingle", {Reference(VT_R8, &precise)});
  EXPECT_TRUE(answer.IsFalse());
  EXPECT_EQ(precise, 0.1);
  Variant variable;
  *variable.Get() = Given(VT_R8, 0.1);
  Client().Call(answer, L"ScanSingle", {Reference(*variable.Get())});
  EXPECT_TRUE(answer.IsFalse());
  ASSERT_EQ(variable.Type(), VT_R8);
  EXPECT_EQ(variable->dblVal, 0.1);
}

TEST_P(LateBoundTest, AnArgumentGivenByValueIsTakenAndItsResultDropped) {
  Read("2.5\r\n3.5");
  LateAnswer answer;
  Client().Call(answer, L"ScanSingle", {Given(VT_R8, 1.0)});
  EXPECT_TRUE(answer.IsTrue());
  Client().Call(answer, L"ScanSingle", {Given(Bstr("1"))});
  EXPECT_TRUE(answer.IsTrue());
  EXPECT_TRUE(EndOfFile());
}

TEST_P(LateBoundTest, AResultThatDoesNotFitTheCallersTypeIsAnOverflow) {
  Read("1E6");
  short small = 3;
  LateAnswer answer;
  Client().Call(answer, L"ScanSingle", {Reference(VT_I2, &small)});
  EXPECT_EQ(answer.code, DISP_E_OVERFLOW);
  EXPECT_EQ(answer.badArgument, 0U);
  EXPECT_EQ(small, 3);
  EXPECT_EQ(answer.value.Type(), VT_EMPTY);
}

TEST_P(LateBoundTest, TheModeIsTakenFromEveryTypeThatHoldsIt) {
  const Bstr digits("3");
  VARIANT variable = Given<long>(VT_I4, 3);
  const VARIANT modes[] = {Given<short>(VT_I2, 3), Given<long>(VT_I4, 3),  Given(VT_R8, 3.0),
                           Given(VT_R4, 3.0F),     Given<BYTE>(VT_UI1, 3), Given(digits),
                           Given(VT_R8, 2.6),      Reference(variable)};
  for (const VARIANT& mode : modes) {
    LateAnswer answer;
    Client().Call(answer, L"OpenFile", {Given(Bstr("text")), mode});
    EXPECT_TRUE(answer.IsTrue()) << "type " << mode.vt;
    EXPECT_EQ(Buffer(), "text") << "type " << mode.vt;
  }
}

TEST_P(LateBoundTest, AModeThatIsNoneIsAnsweredFalse) {
  for (const long mode : {0L, 5L, -1L, 32767L, -32768L}) {
    LateAnswer answer;
    Client().Call(answer, L"OpenFile", {Given(Bstr("text")), Given(VT_I4, mode)});
    EXPECT_TRUE(answer.IsFalse()) << "mode " << mode;
  }
}

TEST_P(LateBoundTest, AnArgumentThatCannotBecomeItsTypeIsNamed) {
  const Bstr letters("letters");
  const Bstr big("70000");
  struct Case {
    VARIANT mode;
    HRESULT code;
  };
  const Case cases[] = {{Given<long>(VT_I4, 32768), DISP_E_OVERFLOW},
                        {Given<long>(VT_I4, 65539), DISP_E_OVERFLOW},
                        {Given(VT_R8, 1e300), DISP_E_OVERFLOW},
                        {Given(big), DISP_E_OVERFLOW},
                        {Given(letters), DISP_E_TYPEMISMATCH},
                        {Given<short>(VT_NULL, 0), DISP_E_TYPEMISMATCH},
                        {Given<SCODE>(VT_ERROR, DISP_E_PARAMNOTFOUND), DISP_E_PARAMNOTOPTIONAL},
                        {Reference(VT_I4, nullptr), E_POINTER},
                        {Reference(VT_VARIANT, nullptr), E_POINTER}};
  for (const Case& c : cases) {
    LateAnswer answer;
    Client().Call(answer, L"OpenFile", {Given(Bstr("text")), c.mode});
    EXPECT_EQ(answer.code, c.code) << "type " << c.mode.vt;
    EXPECT_EQ(answer.badArgument, 0U) << "type " << c.mode.vt;  // the last one comes first
    EXPECT_FALSE(IsOpened()) << "type " << c.mode.vt;
  }
}

TEST_P(LateBoundTest, WrongArgumentCountsAreRefused) {
  const LateClient client = Client();
  LateAnswer answer;
  const VARIANT number = Given<short>(VT_I2, 3);
  client.Call(answer, L"OpenFile", {});
  EXPECT_EQ(answer.code, DISP_E_BADPARAMCOUNT);
  client.Call(answer, L"OpenFile", {number});
  EXPECT_EQ(answer.code, DISP_E_BADPARAMCOUNT);
  client.Call(answer, L"OpenFile", {number, number, number});
  EXPECT_EQ(answer.code, DISP_E_BADPARAMCOUNT);
  client.Call(answer, L"CloseFile", {number});
  EXPECT_EQ(answer.code, DISP_E_BADPARAMCOUNT);
  client.Call(answer, L"Buffer", {number});
  EXPECT_EQ(answer.code, DISP_E_BADPARAMCOUNT);
}

TEST_P(LateBoundTest, ArgumentsMayGoByName) {
  const LateClient client = Client();
  LateAnswer answer;
  const Bstr text("named");
  const VARIANT mode = Given<short>(VT_I2, AsciiBufferInput);
  client.CallNamed(answer, L"OpenFile", {1, 0}, {mode, Given(text)});
  EXPECT_TRUE(answer.IsTrue());
  EXPECT_EQ(Buffer(), "named");
  client.CallNamed(answer, L"OpenFile", {1}, {Given(text), mode});
  EXPECT_TRUE(answer.IsTrue());
  client.CallNamed(answer, L"OpenFile", {0}, {Given(text), mode});
  EXPECT_EQ(answer.code, DISP_E_PARAMNOTFOUND);  // given twice
  client.CallNamed(answer, L"OpenFile", {2}, {Given(text), mode});
  EXPECT_EQ(answer.code, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(answer.badArgument, 0U);
  client.CallNamed(answer, L"OpenFile", {-3}, {Given(text), mode});
  EXPECT_EQ(answer.code, DISP_E_PARAMNOTFOUND);
}

TEST_P(LateBoundTest, TheNamesOfTheArgumentsAreTheirPlaces) {
  const LateClient client = Client();
  wchar_t member[] = L"OpenFile";
  wchar_t first[] = L"strFileName";
  wchar_t second[] = L"mode";
  LPOLESTR names[] = {member, first, second};
  DISPID ids[3] = {};
  EXPECT_EQ(client->GetIDsOfNames(IID_NULL, names, 3, LOCALE_NEUTRAL, ids), S_OK);
  EXPECT_EQ(ids[0], 2);
  EXPECT_EQ(ids[1], 0);
  EXPECT_EQ(ids[2], 1);
}

TEST_P(LateBoundTest, MembersThatDoNotExistAreRefused) {
  const LateClient client = Client();
  LateAnswer answer;
  wchar_t unknown[] = L"NoSuchMember";
  LPOLESTR name = unknown;
  DISPID id = 0;
  EXPECT_EQ(client->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &id), DISP_E_UNKNOWNNAME);
  client.Call(answer, L"NoSuchMember", {});
  EXPECT_EQ(answer.code, DISP_E_MEMBERNOTFOUND);
  client.Call(answer, L"Buffer", {}, DISPATCH_METHOD);
  EXPECT_EQ(answer.code, DISP_E_MEMBERNOTFOUND);
  client.Call(answer, L"CloseFile", {}, DISPATCH_PROPERTYGET);
  EXPECT_EQ(answer.code, DISP_E_MEMBERNOTFOUND);
  client.CallNamed(answer, L"FileName", {DISPID_PROPERTYPUT}, {Given(Bstr("x"))},
                   DISPATCH_PROPERTYPUT);
  EXPECT_EQ(answer.code, DISP_E_MEMBERNOTFOUND);
}

TEST_P(LateBoundTest, NullPlacesAndReservedArgumentsAreChecked) {
  const LateClient client = Client();
  DISPPARAMS none{};
  EXPECT_EQ(client->Invoke(3, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(client->Invoke(3, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  EXPECT_EQ(client->Invoke(3, IID_IUnknown, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(client->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(client->GetTypeInfo(0, 0, nullptr), E_POINTER);
  EXPECT_EQ(client->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_POINTER);
}

TEST_P(LateBoundTest, TheObjectDescribesItself) {
  const LateClient client = Client();
  UINT count = 0;
  EXPECT_EQ(client->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1U);
  ComPtr<ITypeInfo> type;
  EXPECT_EQ(client->GetTypeInfo(1, 0, type.Out()), DISP_E_BADINDEX);
  ASSERT_EQ(client->GetTypeInfo(0, 0, type.Out()), S_OK);
  Bstr name;
  ASSERT_EQ(type->GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(name.Utf8(), "IclsIOStream");
}

INSTANTIATE_TEST_SUITE_P(Created, LateBoundTest, testing::ValuesIn(TestedRoutes()), RouteName);

}  // namespace
}  // namespace orvik::test
