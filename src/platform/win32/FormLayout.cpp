#include "platform/win32/FormLayout.h"

#include <algorithm>
#include <array>

#include "platform/win32/NativeComboBox.h"

namespace orvik {
namespace {

constexpr int kFirstControl = 100;  // above the numbers of dialog keys

const WidgetDesign* Find(const FormDesign& design, std::string_view name) {
  const auto widgets = design.Widgets();
  const auto found = std::ranges::find(widgets, name, &WidgetDesign::name);
  return found == widgets.end() ? nullptr : &*found;
}

bool IsOfClass(HWND control, std::wstring_view name) {
  std::array<wchar_t, 32> text{};
  const int length = ::GetClassNameW(control, text.data(), static_cast<int>(text.size()));
  const std::wstring_view found(text.data(), static_cast<std::size_t>(length));
  return ::CompareStringOrdinal(found.data(), static_cast<int>(found.size()), name.data(),
                                static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

bool IsOption(HWND control) {
  return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

// The arrow keys stay within a row of option buttons: it and what follows it begin a group.
void MarkGroup(HWND control, bool begins) {
  const LONG_PTR style = ::GetWindowLongPtrW(control, GWL_STYLE);
  ::SetWindowLongPtrW(control, GWL_STYLE, begins ? style | WS_GROUP : style & ~LONG_PTR{WS_GROUP});
}

}  // namespace

std::optional<int> ControlNumber(const FormDesign& design, std::string_view name) {
  const WidgetDesign* row = Find(design, name);
  if (!row) return std::nullopt;
  return kFirstControl + static_cast<int>(row - design.Widgets().data());
}

HWND ParentOf(HWND window, const FormDesign& design, std::string_view name) {
  const WidgetDesign* row = Find(design, name);
  if (!row || row->parent.empty()) return window;
  const HWND parent = FindControl(window, design, row->parent);
  return parent ? parent : window;
}

HWND FindControl(HWND window, const FormDesign& design, std::string_view name) {
  const auto number = ControlNumber(design, name);
  return number ? ::GetDlgItem(ParentOf(window, design, name), *number) : nullptr;
}

void ApplyFont(HWND window, const FormDesign& design, const MessageFont& font) {
  for (const WidgetDesign& row : design.Widgets()) {
    const HWND control = FindControl(window, design, row.name);
    if (!control) continue;
    const HFONT own = row.style == WidgetStyle::Heading ? font.Bold() : font.Plain();
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(own), TRUE);
  }
}

void ApplyOrder(HWND window, const FormDesign& design) {
  bool followsOption = false;
  for (const WidgetDesign& row : design.Widgets()) {
    const HWND control = FindControl(window, design, row.name);
    if (!control) continue;
    ::SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    const bool isOption = IsOption(control);
    MarkGroup(control, isOption != followsOption);
    followsOption = isOption;
  }
}

void ApplyLayout(HWND window, const FormDesign& design, const MessageFont& font) {
  RECT inner{};
  ::GetClientRect(window, &inner);
  for (const Placement& place : design.LayOut({inner.right, inner.bottom}, font.Measures())) {
    const HWND control = FindControl(window, design, place.name);
    if (!control) continue;
    const Area& area = place.area;
    if (IsOfClass(control, L"ComboBox")) {
      PlaceComboBox(control, {area.left, area.top, area.right, area.bottom});
    } else {
      ::SetWindowPos(control, nullptr, area.left, area.top, area.right - area.left,
                     area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
  }
}

}  // namespace orvik
