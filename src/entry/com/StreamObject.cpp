#include "entry/com/StreamObject.h"

#include <cstdint>
#include <string>

#include "entry/com/Bstr.h"
#include "entry/com/ComError.h"
#include "entry/com/Wall.h"

namespace orvik::com {
namespace {

constexpr const wchar_t* kStreamSource = L"StReuse.clsIOStream";

VARIANT_BOOL ToVariantBool(bool value) {
  return value ? VARIANT_TRUE : VARIANT_FALSE;
}

// The type library passes an enumeration as 32 bits. A value beyond 16 must not become another one
// by losing its upper half: it is no mode, as 0 is none.
orvik::enumIOStreamMode ToMode(::enumIOStreamMode mode) {
  const auto value = static_cast<std::int32_t>(mode);
  const bool known = value >= 0 && value <= std::int32_t{::AsciiBufferOutput};
  return known ? static_cast<orvik::enumIOStreamMode>(value) : orvik::enumIOStreamMode::None;
}

}  // namespace

template <class Operation>
HRESULT StreamObject::Answer(VARIANT_BOOL* Result, Operation&& operation) noexcept {
  return Wall(__uuidof(IclsIOStream), kStreamSource, [&] {
    Require(Result, "Result");
    *Result = VARIANT_FALSE;
    *Result = ToVariantBool(operation());
  });
}

template <class Operation>
HRESULT StreamObject::AnswerText(BSTR* Result, Operation&& operation) noexcept {
  return Wall(__uuidof(IclsIOStream), kStreamSource, [&] {
    Require(Result, "Result");
    *Result = nullptr;
    *Result = Bstr(operation()).Release();
  });
}

STDMETHODIMP StreamObject::ScanSingle(float* sVal, VARIANT_BOOL* Result) {
  return Answer(Result, [&] {
    Require(sVal, "sVal");
    return stream_.ScanSingle(*sVal);
  });
}

STDMETHODIMP StreamObject::OpenFile(BSTR strFileName, ::enumIOStreamMode Mode,
                                    VARIANT_BOOL* Result) {
  return Answer(Result, [&] { return stream_.OpenFile(Utf8FromBstr(strFileName), ToMode(Mode)); });
}

STDMETHODIMP StreamObject::CloseFile(VARIANT_BOOL* Result) {
  return Answer(Result, [&] { return stream_.CloseFile(); });
}

STDMETHODIMP StreamObject::IsOpened(VARIANT_BOOL* Result) {
  return Answer(Result, [&] { return stream_.IsOpened(); });
}

STDMETHODIMP StreamObject::get_FileName(BSTR* Result) {
  return AnswerText(Result, [&] { return stream_.FileName(); });
}

STDMETHODIMP StreamObject::ScanString(BSTR* TargetString, VARIANT_BOOL* Result) {
  return Answer(Result, [&] {
    Require(TargetString, "TargetString");
    const std::string before = Utf8FromBstr(*TargetString);
    std::string text = before;
    const bool read = stream_.ScanString(text);
    if (text != before) {
      Bstr line(text);
      ::SysFreeString(*TargetString);
      *TargetString = line.Release();
    }
    return read;
  });
}

STDMETHODIMP StreamObject::WriteString(BSTR txt, VARIANT_BOOL* Result) {
  return Answer(Result, [&] { return stream_.WriteString(Utf8FromBstr(txt)); });
}

STDMETHODIMP StreamObject::EndOfFile(VARIANT_BOOL* Result) {
  return Answer(Result, [&] { return stream_.EndOfFile(); });
}

STDMETHODIMP StreamObject::ScanInteger(short* i, VARIANT_BOOL* Result) {
  return Answer(Result, [&] {
    Require(i, "i");
    return stream_.ScanInteger(*i);
  });
}

STDMETHODIMP StreamObject::get_Buffer(BSTR* Result) {
  return AnswerText(Result, [&] { return stream_.Buffer(); });
}

}  // namespace orvik::com
