// The controls of a window at the places that its design gives them.
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

// The control of a widget; null while it is not made.
HWND FindControl(HWND window, const FormDesign& design, std::string_view name);

// The window that a widget is to be a child of.
HWND ParentOf(HWND window, const FormDesign& design, std::string_view name);

// Each control into the font of its style.
void ApplyFont(HWND window, const FormDesign& design, const MessageFont& font);

// The controls into the order of the Tab key.
void ApplyOrder(HWND window, const FormDesign& design);

// Each control to its place in the window's present size.
void ApplyLayout(HWND window, const FormDesign& design, const MessageFont& font);

}  // namespace orvik
