#include "platform/win32/BrowserPage.h"

#include <shellapi.h>

#include <array>
#include <string_view>

#include "base/Text.h"
#include "platform/win32/WideText.h"

namespace orvik {
namespace {

constexpr std::size_t kProgramSize = 255;
constexpr INT_PTR kFirstSuccess = 33;  // results below it are errors

// The path in the machine's code page; empty where it cannot be written in it.
std::string AnsiPath(const std::wstring& path) {
  BOOL isLossy = FALSE;
  const int size = static_cast<int>(path.size());
  const int needed = ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path.data(), size, nullptr,
                                           0, nullptr, &isLossy);
  if (needed <= 0 || isLossy) return {};
  std::string ansi(static_cast<std::size_t>(needed), '\0');
  ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path.data(), size, ansi.data(), needed,
                        nullptr, nullptr);
  return ansi;
}

bool Succeeded(HINSTANCE result) {
  return reinterpret_cast<INT_PTR>(result) >= kFirstSuccess;
}

PageOpening OpenAnsi(HWND owner, const std::string& path) {
  std::array<char, kProgramSize + 5> program{};  // the system may write MAX_PATH characters
  const bool isFound = Succeeded(::FindExecutableA(path.c_str(), nullptr, program.data()));
  const std::string name(Trim(program.data()));
  if (!isFound || name.empty()) return PageOpening::NoProgram;
  const std::string quoted = '"' + path + '"';
  const HINSTANCE opened =
      ::ShellExecuteA(owner, "open", name.c_str(), quoted.c_str(), nullptr, SW_SHOWNORMAL);
  return Succeeded(opened) ? PageOpening::Opened : PageOpening::Failed;
}

PageOpening OpenWide(HWND owner, const std::wstring& path) {
  std::array<wchar_t, kProgramSize + 5> program{};
  const bool isFound = Succeeded(::FindExecutableW(path.c_str(), nullptr, program.data()));
  const std::string name(Trim(Utf8FromWide(program.data())));
  if (!isFound || name.empty()) return PageOpening::NoProgram;
  const std::wstring quoted = L'"' + path + L'"';
  const HINSTANCE opened = ::ShellExecuteW(owner, L"open", WideFromUtf8(name).c_str(),
                                           quoted.c_str(), nullptr, SW_SHOWNORMAL);
  return Succeeded(opened) ? PageOpening::Opened : PageOpening::Failed;
}

}  // namespace

// Folders with names beyond the machine's code page need the wide form of the same calls.
PageOpening OpenInBrowser(HWND owner, const std::string& path) {
  const std::wstring wide = WideFromUtf8(path);
  const std::string ansi = AnsiPath(wide);
  return ansi.empty() ? OpenWide(owner, wide) : OpenAnsi(owner, ansi);
}

}  // namespace orvik
