#include "platform/win32/WideText.h"

#include <windows.h>

#include <limits>
#include <stdexcept>

namespace orvik {
namespace {

int Length(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw std::length_error("The text is too long.");
  }
  return static_cast<int>(size);
}

}  // namespace

std::string Utf8FromWide(std::wstring_view text) {
  if (text.empty()) return {};
  const int length = Length(text.size());
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::wstring WideFromUtf8(std::string_view text) {
  if (text.empty()) return {};
  const int length = Length(text.size());
  const int size = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
  return wide;
}

}  // namespace orvik
