// The stream through its vtable, as a compiled client uses it.
#include <windows.h>

#include "entry/com/ComError.h"
#include "windows/StreamClientTest.h"

namespace orvik::test {
namespace {

using com::Bstr;
using namespace std::string_literals;

using EarlyBoundTest = StreamClientTest;

TEST_P(EarlyBoundTest, ANewStreamIsClosedAndEmpty) {
  EXPECT_FALSE(IsOpened());
  EXPECT_TRUE(EndOfFile());
  EXPECT_EQ(FileName(), "");
  EXPECT_EQ(Buffer(), "");
  EXPECT_FALSE(CloseFile());
}

TEST_P(EarlyBoundTest, WritesAndReadsAFileWithForeignNamesAndText) {
  const TempFolder folder;
  const std::string path = folder / "Überlauf-Δ-雨水-\U0001F327.txt";
  ASSERT_TRUE(OpenFile(path, AsciiFileOutput));
  EXPECT_EQ(FileName(), path);
  EXPECT_TRUE(IsOpened());
  EXPECT_TRUE(EndOfFile());
  EXPECT_TRUE(WriteString("½ inch — 雨水"));
  EXPECT_TRUE(WriteString("12.5, 7"));
  EXPECT_TRUE(CloseFile());
  EXPECT_EQ(ReadBytes(path), "½ inch — 雨水\r\n12.5, 7\r\n");

  ASSERT_TRUE(OpenFile(path, AsciiFileInput));
  EXPECT_FALSE(EndOfFile());
  std::string line;
  EXPECT_TRUE(ScanString(line));
  EXPECT_EQ(line, "½ inch — 雨水");
  float single = 0;
  EXPECT_TRUE(ScanSingle(single));
  EXPECT_EQ(single, 12.5F);
  short whole = 0;
  EXPECT_TRUE(ScanInteger(whole));
  EXPECT_EQ(whole, 7);
  EXPECT_TRUE(EndOfFile());
}

TEST_P(EarlyBoundTest, ABufferIsReadLineByLine) {
  ASSERT_TRUE(OpenFile(" 12.5 \r\nletters\r\n-3\r\nlast", AsciiBufferInput));
  EXPECT_EQ(FileName(), "");
  float single = 0;
  EXPECT_TRUE(ScanSingle(single));
  EXPECT_EQ(single, 12.5F);
  EXPECT_FALSE(ScanSingle(single));
  EXPECT_EQ(single, 12.5F);
  short whole = 1;
  EXPECT_TRUE(ScanInteger(whole));
  EXPECT_EQ(whole, -3);
  std::string line;
  EXPECT_TRUE(ScanString(line));
  EXPECT_EQ(line, "last");
  EXPECT_TRUE(EndOfFile());
  EXPECT_FALSE(ScanString(line));
  EXPECT_EQ(line, "last");
}

TEST_P(EarlyBoundTest, ABufferIsWritten) {
  ASSERT_TRUE(OpenFile("", AsciiBufferOutput));
  EXPECT_TRUE(WriteString("A"));
  EXPECT_TRUE(WriteString("ß"));
  EXPECT_EQ(Buffer(), "A\r\nß\r\n");
  EXPECT_TRUE(CloseFile());
  EXPECT_EQ(Buffer(), "");
}

TEST_P(EarlyBoundTest, NulsInATextSurvive) {
  ASSERT_TRUE(OpenFile("a\0b\r\n\0"s, AsciiBufferInput));
  EXPECT_EQ(Buffer(), "a\0b\r\n\0"s);
  std::string line;
  EXPECT_TRUE(ScanString(line));
  EXPECT_EQ(line, "a\0b"s);
  EXPECT_TRUE(ScanString(line));
  EXPECT_EQ(line, "\0"s);
}

TEST_P(EarlyBoundTest, ANullTextIsTheEmptyText) {
  VARIANT_BOOL result = VARIANT_TRUE;
  EXPECT_EQ(stream_->OpenFile(nullptr, AsciiBufferInput, &result), S_OK);
  EXPECT_EQ(result, VARIANT_FALSE);
  ASSERT_TRUE(OpenFile("", AsciiBufferOutput));
  EXPECT_EQ(stream_->WriteString(nullptr, &result), S_OK);
  EXPECT_EQ(result, VARIANT_TRUE);
  EXPECT_EQ(Buffer(), "\r\n");
}

TEST_P(EarlyBoundTest, ModesOutsideTheEnumerationAreRefused) {
  // 65537 and 65540 would be good modes if their upper half were lost.
  for (const int mode : {0, 5, -1, 32767, -32768, 65537, 65540, -2147483647}) {
    EXPECT_FALSE(OpenFile("text", mode)) << "mode " << mode;
    EXPECT_FALSE(IsOpened()) << "mode " << mode;
  }
}

TEST_P(EarlyBoundTest, AMissingPlaceIsAnErrorWithASentence) {
  VARIANT_BOOL result = VARIANT_TRUE;
  EXPECT_EQ(stream_->CloseFile(nullptr), E_POINTER);
  EXPECT_EQ(stream_->IsOpened(nullptr), E_POINTER);
  EXPECT_EQ(stream_->EndOfFile(nullptr), E_POINTER);
  EXPECT_EQ(stream_->WriteString(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(stream_->OpenFile(nullptr, AsciiBufferOutput, nullptr), E_POINTER);
  EXPECT_EQ(stream_->get_FileName(nullptr), E_POINTER);
  EXPECT_EQ(stream_->get_Buffer(nullptr), E_POINTER);
  EXPECT_EQ(stream_->ScanSingle(nullptr, &result), E_POINTER);
  EXPECT_EQ(result, VARIANT_FALSE);
  EXPECT_EQ(stream_->ScanString(nullptr, &result), E_POINTER);
  EXPECT_EQ(stream_->ScanInteger(nullptr, &result), E_POINTER);

  ComPtr<IErrorInfo> error;
  ASSERT_EQ(::GetErrorInfo(0, error.Out()), S_OK);
  Bstr text;
  ASSERT_EQ(error->GetDescription(text.Out()), S_OK);
  EXPECT_EQ(text.Utf8(), "No place was given for the argument i.");
  ASSERT_EQ(error->GetSource(text.Out()), S_OK);
  EXPECT_EQ(text.Utf8(), "StReuse.clsIOStream");
  GUID iid{};
  ASSERT_EQ(error->GetGUID(&iid), S_OK);
  EXPECT_TRUE(iid == __uuidof(IclsIOStream));
  EXPECT_FALSE(IsOpened());  // the refused calls did nothing
}

TEST_P(EarlyBoundTest, AGoodCallClearsTheErrorOfAnEarlierOne) {
  EXPECT_EQ(stream_->CloseFile(nullptr), E_POINTER);
  EXPECT_FALSE(IsOpened());
  ComPtr<IErrorInfo> error;
  EXPECT_EQ(::GetErrorInfo(0, error.Out()), S_FALSE);
}

TEST_P(EarlyBoundTest, AnOutputFileIsClosedWithItsObject) {
  const TempFolder folder;
  const std::string path = folder / "left-open.txt";
  const std::wstring wide = com::WideFromUtf8(path);
  ASSERT_TRUE(OpenFile(path, AsciiFileOutput));
  EXPECT_TRUE(WriteString("kept"));
  EXPECT_FALSE(::DeleteFileW(wide.c_str())) << "an open file is protected from deletion";
  stream_.Reset();
  EXPECT_EQ(ReadBytes(path), "kept\r\n");
  EXPECT_TRUE(::MoveFileW(wide.c_str(), (wide + L".moved").c_str()));
  EXPECT_TRUE(::DeleteFileW((wide + L".moved").c_str()));
}

TEST_P(EarlyBoundTest, TheObjectHasItsFourInterfacesAndOneIdentity) {
  ComPtr<IUnknown> identity;
  ASSERT_EQ(stream_->QueryInterface(IID_IUnknown, identity.OutVoid()), S_OK);
  for (const IID& iid : {IID_IDispatch, __uuidof(IclsIOStream), IID_ISupportErrorInfo}) {
    ComPtr<IUnknown> face;
    ASSERT_EQ(identity->QueryInterface(iid, face.OutVoid()), S_OK);
    ComPtr<IUnknown> back;
    ASSERT_EQ(face->QueryInterface(IID_IUnknown, back.OutVoid()), S_OK);
    EXPECT_EQ(back.Get(), identity.Get());
  }
  void* other = &identity;
  EXPECT_EQ(stream_->QueryInterface(IID_IStream, &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
  EXPECT_EQ(stream_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_P(EarlyBoundTest, ErrorInformationIsOfferedForTheStreamOnly) {
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(stream_->QueryInterface(IID_ISupportErrorInfo, support.OutVoid()), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IclsIOStream)), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IStream), S_FALSE);
}

TEST_P(EarlyBoundTest, ReferencesAreCounted) {
  EXPECT_EQ(stream_->AddRef(), 2U);
  EXPECT_EQ(stream_->AddRef(), 3U);
  EXPECT_EQ(stream_->Release(), 2U);
  EXPECT_EQ(stream_->Release(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Created, EarlyBoundTest, testing::ValuesIn(TestedRoutes()), RouteName);

}  // namespace
}  // namespace orvik::test
