#include "GuiObjects.h"

#include <windows.h>
#include <winternl.h>

#include <cstring>

namespace orvik::test {
namespace {

constexpr int kHandles = 0x10000;  // of each kind: the low word of a handle tells them apart

// The process' own view of GDI's handles. GetGuiResources would tell their number, but not under
// Wine, where it always answers 0.
int CountInHandleTable() {
#ifdef _WIN64
  constexpr std::size_t kTableInProcessBlock = 0xF8;
  constexpr std::size_t kEntry = 24;
  constexpr std::size_t kType = 14;
#else
  constexpr std::size_t kTableInProcessBlock = 0x94;
  constexpr std::size_t kEntry = 16;
  constexpr std::size_t kType = 10;
#endif
  PROCESS_BASIC_INFORMATION process{};
  ::NtQueryInformationProcess(::GetCurrentProcess(), ProcessBasicInformation, &process,
                              sizeof process, nullptr);
  const auto* block = reinterpret_cast<const char*>(process.PebBaseAddress);
  const char* table = nullptr;
  std::memcpy(&table, block + kTableInProcessBlock, sizeof table);
  int count = 0;
  for (int i = 0; table && i < kHandles; ++i) {
    if (table[static_cast<std::size_t>(i) * kEntry + kType] != 0) ++count;
  }
  return count;
}

int CountDrawing() {
  const auto count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  return count != 0 ? static_cast<int>(count) : CountInHandleTable();
}

bool IsOwnWindow(HWND window) {
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  return process == ::GetCurrentProcessId();
}

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

BOOL CALLBACK CountOwnTree(HWND top, LPARAM count) {
  if (!IsOwnWindow(top)) return TRUE;
  CountWindow(top, count);
  ::EnumChildWindows(top, &CountWindow, count);
  return TRUE;
}

int CountWindows() {
  int count = 0;
  ::EnumWindows(&CountOwnTree, reinterpret_cast<LPARAM>(&count));
  HWND silent = nullptr;  // windows for messages only
  while ((silent = ::FindWindowExW(HWND_MESSAGE, silent, nullptr, nullptr)) != nullptr) {
    CountOwnTree(silent, reinterpret_cast<LPARAM>(&count));
  }
  return count;
}

int CountMenus() {
  int count = 0;
  for (std::intptr_t low = 2; low < kHandles; low += 2) {
    if (::IsMenu(reinterpret_cast<HMENU>(low))) ++count;
  }
  return count;
}

}  // namespace

GuiObjects GuiObjects::Count() {
  return {CountDrawing(), CountWindows(), CountMenus()};
}

}  // namespace orvik::test
