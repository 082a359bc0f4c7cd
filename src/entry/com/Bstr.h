// Text at the COM border: BSTR outside, UTF-8 inside. Both carry their length, so a NUL is a
// character like any other. A surrogate without its partner, which UTF-8 cannot hold, becomes
// U+FFFD.
#pragma once

#include <ole2.h>

#include <string>
#include <string_view>

#include "platform/win32/WideText.h"

namespace orvik::com {

// A null BSTR is the empty text.
std::string Utf8FromBstr(BSTR text);

using orvik::Utf8FromWide;
using orvik::WideFromUtf8;

// An owned BSTR.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view utf8);
  explicit Bstr(std::wstring_view text);
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { ::SysFreeString(text_); }

  BSTR Get() const { return text_; }
  std::string Utf8() const { return Utf8FromBstr(text_); }
  std::wstring_view Wide() const { return {text_ ? text_ : L"", ::SysStringLen(text_)}; }

  // Hands the text over to the caller.
  BSTR Release();
  // For out arguments: frees the present text and shows the empty place.
  BSTR* Out();

 private:
  BSTR text_ = nullptr;
};

}  // namespace orvik::com
