#include "entry/com/Bstr.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace orvik::com {
namespace {

int Length(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw std::length_error("The text is too long.");
  }
  return static_cast<int>(size);
}

BSTR Allocate(std::wstring_view text) {
  const BSTR allocated = ::SysAllocStringLen(text.data(), static_cast<UINT>(Length(text.size())));
  if (!allocated) throw std::bad_alloc();
  return allocated;
}

}  // namespace

std::string Utf8FromBstr(BSTR text) {
  return text ? Utf8FromWide({text, ::SysStringLen(text)}) : std::string();
}

Bstr::Bstr(std::string_view utf8) : Bstr(std::wstring_view(WideFromUtf8(utf8))) {}

Bstr::Bstr(std::wstring_view text) : text_(Allocate(text)) {}

BSTR Bstr::Release() {
  return std::exchange(text_, nullptr);
}

BSTR* Bstr::Out() {
  ::SysFreeString(std::exchange(text_, nullptr));
  return &text_;
}

}  // namespace orvik::com
