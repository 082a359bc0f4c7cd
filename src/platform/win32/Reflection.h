// Passes on to a control the notifications that Windows sends to its parent.
#pragma once

#include <windows.h>

#include <optional>

namespace orvik {

// Messages of our own to controls. A control that does not know them answers 0.
inline constexpr UINT kReflectedCommand = WM_APP + 0x100;  // wParam as WM_COMMAND has it
inline constexpr UINT kReflectedColour = WM_APP + 0x101;   // wParam: HDC; answers a brush
inline constexpr UINT kCommitEdit = WM_APP + 0x102;  // a command follows: the field counts as left

// What a parent's window procedure does with such a message; nothing where it is another message,
// or the control has no answer.
inline std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto control = reinterpret_cast<HWND>(lParam);
  if (message == WM_COMMAND && control) {
    return ::SendMessageW(control, kReflectedCommand, wParam, 0);
  }
  if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC) {
    const LRESULT brush = ::SendMessageW(control, kReflectedColour, wParam, 0);
    if (brush != 0) return brush;
  }
  return std::nullopt;
}

}  // namespace orvik
