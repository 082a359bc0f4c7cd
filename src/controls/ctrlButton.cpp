#include "controls/ctrlButton.h"

#include <utility>

#include "platform/EdgeRing.h"

namespace orvik {
namespace {

constexpr std::int16_t kKeyEnter = 13;
constexpr std::int16_t kKeySpace = 32;

// A caption's three parts: what stands before, in and after its mnemonic.
struct CaptionParts {
  std::string before;
  std::string mnemonic;
  std::string after;
};

// The first "&" marks the character after it; "&&" is a "&" that is shown.
CaptionParts Split(std::string_view caption) {
  CaptionParts parts;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const bool isMark = caption[i] == '&' && i + 1 < caption.size();
    if (isMark) ++i;
    if (isMark && caption[i] != '&' && parts.mnemonic.empty()) {
      parts.mnemonic = caption[i];
    } else {
      (parts.mnemonic.empty() ? parts.before : parts.after) += caption[i];
    }
  }
  return parts;
}

std::string Shown(std::string_view caption) {
  const CaptionParts parts = Split(caption);
  return parts.before + parts.mnemonic + parts.after;
}

}  // namespace

ctrlButton::ctrlButton(std::unique_ptr<Timer> Timer1) : Timer1_(std::move(Timer1)) {
  font_.pixelHeight = 13;
  Timer1_->OnTick = [this] { Timer1_Timer(); };
}

void ctrlButton::Resize(int width, int height) {
  const bool widthChanged = Write(width_, width);
  const bool heightChanged = Write(height_, height);
  if (widthChanged || heightChanged) Repaint();
}

// --- Caption ---

void ctrlButton::Caption(std::string_view caption) {
  if (Write(lblCaption_.caption, std::string(caption))) Repaint();
}

void ctrlButton::CaptionFont(const Font& font) {
  font_ = font;
  Repaint();
}

void ctrlButton::Flash(bool on) {
  if (on) {
    if (!Timer1_->Running()) Timer1_->Start(kFlashInterval);
    return;
  }
  Timer1_->Stop();
  StyleCaption(kButtonText, false);
}

void ctrlButton::Timer1_Timer() {
  const bool isNormal = lblCaption_.foreColor == kButtonText;
  StyleCaption(isNormal ? kRed : kButtonText, isNormal);
}

void ctrlButton::StyleCaption(Colour colour, bool bold) {
  const bool colourChanged = Write(lblCaption_.foreColor, colour);
  const bool boldChanged = Write(lblCaption_.fontBold, bold);
  CenterLabel();  // bold text is wider
  if (colourChanged || boldChanged) Repaint();
}

void ctrlButton::CenterLabel() {
  if (Surface* surface = host_ ? host_->DrawNow() : nullptr) CenterLabel(*surface);
}

void ctrlButton::CenterLabel(Surface& surface) {
  const Size size = surface.MeasureText(Shown(lblCaption_.caption), LabelFont());
  Write(lblCaption_.width, size.width);
  Write(lblCaption_.height, size.height);
  Write(lblCaption_.left, (width_ - size.width) / 2);
  Write(lblCaption_.top, (height_ - size.height) / 2);
}

Font ctrlButton::LabelFont() const {
  Font font = font_;
  font.bold = lblCaption_.fontBold;
  return font;
}

// --- Painting ---

void ctrlButton::Paint(Surface& surface, bool isEnabled) {
  const Area all{0, 0, width_, height_};
  const bool raised = state_ == State::Raised;
  surface.FillArea(all, kButtonFace);
  DrawEdgeRing(surface, all, raised ? k3DHighlight : k3DDarkShadow, k3DDarkShadow);
  DrawEdgeRing(surface, Inside(all), raised ? k3DLight : kButtonShadow, kButtonShadow);
  Write(lblCaption_.visible, !lblCaption_.caption.empty());
  if (!lblCaption_.visible) return;
  CenterLabel(surface);
  WriteCaption(surface, isEnabled ? lblCaption_.foreColor : kButtonShadow);
}

void ctrlButton::WriteCaption(Surface& surface, Colour colour) const {
  const CaptionParts parts = Split(lblCaption_.caption);
  Font font = LabelFont();
  Point at{lblCaption_.left, lblCaption_.top};
  const auto write = [&](const std::string& part, bool underline) {
    if (part.empty()) return;
    font.underline = underline;
    surface.WriteText(at, part, font, colour);
    at.x += surface.MeasureText(part, font).width;
  };
  write(parts.before, false);
  write(parts.mnemonic, true);
  write(parts.after, false);
}

void ctrlButton::Repaint() {
  if (host_) host_->Invalidate();
}

// --- Mouse ---

void ctrlButton::MouseDown() {
  if (host_) host_->CaptureMouse();
  pressed_ = true;
  pressedByKey_ = false;
  Show(State::Sunken);
}

void ctrlButton::MouseMove(double x, double y) {
  if (pressed_) Show(IsInside(x, y) ? State::Sunken : State::Raised);
}

void ctrlButton::MouseUp(double x, double y) {
  if (!pressed_) return;
  // The flag first: giving the mouse back makes the system report its loss.
  pressed_ = false;
  if (host_) host_->ReleaseMouse();
  Show(State::Raised);
  if (IsInside(x, y)) Click();
}

void ctrlButton::Click() {
  const std::function<void()> click = OnClick;  // the answer may take the button away
  if (click) click();
}

void ctrlButton::CaptureLost() {
  if (!pressed_) return;
  pressed_ = false;
  Show(State::Raised);
}

bool ctrlButton::IsInside(double x, double y) const {
  return 0 <= x && x < width_ && 0 <= y && y < height_;
}

// --- Keys ---

void ctrlButton::KeyDown(std::int16_t keyCode) {
  if (pressed_) return;
  if (keyCode == kKeyEnter) return Click();
  if (keyCode != kKeySpace) return;
  pressedByKey_ = true;
  Show(State::Sunken);
}

void ctrlButton::KeyUp(std::int16_t keyCode) {
  if (keyCode != kKeySpace || !pressedByKey_) return;
  pressedByKey_ = false;
  Show(State::Raised);
  Click();
}

void ctrlButton::LostFocus() {
  if (!pressedByKey_) return;
  pressedByKey_ = false;
  Show(State::Raised);
}

bool ctrlButton::WantsKey(std::int16_t keyCode) {
  return keyCode == kKeyEnter || keyCode == kKeySpace;
}

void ctrlButton::Show(State state) {
  if (Write(state_, state)) Repaint();
}

// Writes a property only when it differs; true then.
template <typename Value>
bool ctrlButton::Write(Value& property, Value value) {
  if (property == value) return false;
  property = std::move(value);
  return true;
}

}  // namespace orvik
