#include "platform/win32/FileDialogs.h"

#include <commdlg.h>

#include <algorithm>

#include "platform/win32/WideText.h"

namespace orvik {
namespace {

constexpr std::size_t kLongestPath = 32768;

DWORD FlagsOf(const FileDialog& dialog) {
  DWORD flags = OFN_NOCHANGEDIR | OFN_EXPLORER | OFN_ENABLESIZING;
  if (dialog.overwritePrompt) flags |= OFN_OVERWRITEPROMPT;
  if (dialog.hideReadOnly) flags |= OFN_HIDEREADONLY;
  if (dialog.longNames) flags |= OFN_LONGNAMES;
  return flags;
}

// "Description|pattern|" pairs as the system wants them: each part ended by a zero, and one more at
// the end, which the string adds.
std::wstring FilterOf(const FileDialog& dialog) {
  std::wstring filter = WideFromUtf8(dialog.filter);
  std::ranges::replace(filter, L'|', L'\0');
  return filter;
}

using Ask = BOOL(WINAPI*)(LPOPENFILENAMEW);

std::string Show(HWND owner, const FileDialog& dialog, DWORD flags, Ask ask) {
  const std::wstring filter = FilterOf(dialog);
  const std::wstring folder = WideFromUtf8(dialog.startFolder);
  const std::wstring extension = WideFromUtf8(dialog.defaultExtension);
  std::wstring path(kLongestPath, L'\0');
  OPENFILENAMEW question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner;
  question.lpstrFilter = filter.c_str();
  question.nFilterIndex = static_cast<DWORD>(dialog.filterIndex);
  question.lpstrFile = path.data();
  question.nMaxFile = static_cast<DWORD>(path.size());
  question.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  question.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  question.Flags = flags;
  if (!ask(&question)) return {};
  return Utf8FromWide(path.c_str());
}

}  // namespace

std::string ShowOpenDialog(HWND owner, const FileDialog& dialog) {
  const DWORD flags = FlagsOf(dialog) | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
  return Show(owner, dialog, flags, &::GetOpenFileNameW);
}

std::string ShowSaveDialog(HWND owner, const FileDialog& dialog) {
  return Show(owner, dialog, FlagsOf(dialog) | OFN_PATHMUSTEXIST, &::GetSaveFileNameW);
}

}  // namespace orvik
