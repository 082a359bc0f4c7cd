#include "windows/StreamClientTest.h"

namespace orvik::test {

using com::Bstr;

void StreamClientTest::SetUp() {
  session_ = GetParam().open();
  ASSERT_EQ(GetParam().create(__uuidof(IclsIOStream), stream_.OutVoid()), S_OK);
}

void StreamClientTest::TearDown() {
  if (stream_) {
    IclsIOStream* const last = stream_.Get();
    last->AddRef();
    stream_.Reset();
    EXPECT_EQ(last->Release(), 0U);
  }
}

bool StreamClientTest::OpenFile(std::string_view name, int mode) {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->OpenFile(Bstr(name).Get(), static_cast<::enumIOStreamMode>(mode), &result),
            S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::CloseFile() {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->CloseFile(&result), S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::IsOpened() {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->IsOpened(&result), S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::EndOfFile() {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->EndOfFile(&result), S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::WriteString(std::string_view txt) {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->WriteString(Bstr(txt).Get(), &result), S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::ScanString(std::string& line) {
  VARIANT_BOOL result = 7;
  BSTR text = Bstr(line).Release();
  EXPECT_EQ(stream_->ScanString(&text, &result), S_OK);
  line = com::Utf8FromBstr(text);
  ::SysFreeString(text);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::ScanSingle(float& value) {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->ScanSingle(&value, &result), S_OK);
  return result == VARIANT_TRUE;
}

bool StreamClientTest::ScanInteger(short& value) {
  VARIANT_BOOL result = 7;
  EXPECT_EQ(stream_->ScanInteger(&value, &result), S_OK);
  return result == VARIANT_TRUE;
}

std::string StreamClientTest::FileName() {
  Bstr text;
  EXPECT_EQ(stream_->get_FileName(text.Out()), S_OK);
  return text.Utf8();
}

std::string StreamClientTest::Buffer() {
  Bstr text;
  EXPECT_EQ(stream_->get_Buffer(text.Out()), S_OK);
  return text.Utf8();
}

}  // namespace orvik::test
