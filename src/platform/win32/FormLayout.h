// Puts the controls of a window where its design has them.
#pragma once

#include <windows.h>

#include <optional>
#include <string_view>

#include "platform/FormDesign.h"
#include "platform/win32/MessageFont.h"

namespace orvik {

// The number of a widget's control, by which it is found in its parent; nothing for a name that
// the design does not have.
std::optional<int> ControlNumber(const FormDesign& design, std::string_view name);

// The control of a widget; null before it is made.
HWND FindControl(HWND window, const FormDesign& design, std::string_view name);

// The window that becomes the widget's parent.
HWND ParentOf(HWND window, const FormDesign& design, std::string_view name);

// Gives each control the font of its style.
void ApplyFont(HWND window, const FormDesign& design, const MessageFont& font);

// Puts the controls into Tab order.
void ApplyOrder(HWND window, const FormDesign& design);

// Moves each control to its place in the window at its present size.
void ApplyLayout(HWND window, const FormDesign& design, const MessageFont& font);

}  // namespace orvik
