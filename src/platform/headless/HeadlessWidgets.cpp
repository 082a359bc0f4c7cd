#include "platform/headless/HeadlessWidgets.h"

#include "base/Utf8.h"

namespace orvik {
namespace {

constexpr unsigned char kBlank = 0x20;

// The code of a one-character text as the key handler gets it; 0 beyond U+FFFF.
std::int16_t KeyCode(std::string_view character) {
  const std::uint32_t code = CodePointAt(character, 0);
  return code <= 0xFFFFU ? static_cast<std::int16_t>(code) : std::int16_t{0};
}

}  // namespace

void HeadlessTextBox::Text(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  if (OnChange) OnChange();
}

void HeadlessTextBox::PressKey(std::string_view character) {
  std::string typed(character);
  if (OnKeyPress) {
    const std::int16_t pressed = KeyCode(character);
    std::int16_t code = pressed;
    OnKeyPress(code);
    if (code == 0 && pressed != 0) return;
    if (code != pressed) {
      typed.clear();
      AppendUtf8(typed, static_cast<std::uint16_t>(code));
    }
  }
  const bool printable = static_cast<unsigned char>(typed.front()) >= kBlank;
  if (printable && !locked_) Text(text_ + typed);
}

void HeadlessComboBox::Clear() {
  items_.clear();
  index_ = -1;
}

std::string HeadlessComboBox::List(std::int16_t index) const {
  return IsItem(index) ? items_[static_cast<std::size_t>(index)] : std::string();
}

void HeadlessComboBox::ListIndex(std::int16_t index) {
  if (!IsItem(index)) index = -1;
  if (index == index_) return;
  index_ = index;
  if (OnClick) OnClick();
}

void HeadlessWindow::ShowModally() {
  Visible(true);
  if (OnShown) OnShown();
  Visible(false);
}

void HeadlessControlHost::Move(int, int, int width, int height) {
  width_ = width;
  height_ = height;
  if (OnResize) OnResize(width, height);
}

void HeadlessControlHost::Click() {
  if (OnResize) OnResize(width_, height_);  // a native window tells its size before the first click
  const double x = width_ / 2.0;
  const double y = height_ / 2.0;
  if (OnMouseDown) OnMouseDown(kLeftButton, x, y);
  if (OnMouseUp) OnMouseUp(kLeftButton, x, y);
}

}  // namespace orvik
