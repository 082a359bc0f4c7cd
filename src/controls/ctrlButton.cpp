#include "controls/ctrlButton.h"

#include <utility>

#include "platform/EdgeRing.h"

namespace orvik {

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
  if (Write(lblCaption_.Caption, std::string(caption))) Repaint();
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
  const bool isNormal = lblCaption_.ForeColor == kButtonText;
  StyleCaption(isNormal ? kRed : kButtonText, isNormal);
}

void ctrlButton::StyleCaption(Colour colour, bool bold) {
  const bool colourChanged = Write(lblCaption_.ForeColor, colour);
  const bool boldChanged = Write(lblCaption_.FontBold, bold);
  CenterLabel();  // bold text is wider
  if (colourChanged || boldChanged) Repaint();
}

void ctrlButton::CenterLabel() {
  if (Surface* surface = host_ ? host_->DrawNow() : nullptr) CenterLabel(*surface);
}

void ctrlButton::CenterLabel(Surface& surface) {
  const Size size = surface.MeasureText(lblCaption_.Caption, LabelFont());
  Write(lblCaption_.Width, size.width);
  Write(lblCaption_.Height, size.height);
  Write(lblCaption_.Left, (width_ - size.width) / 2);
  Write(lblCaption_.Top, (height_ - size.height) / 2);
}

Font ctrlButton::LabelFont() const {
  Font font = font_;
  font.bold = lblCaption_.FontBold;
  return font;
}

// --- Painting ---

void ctrlButton::Paint(Surface& surface) {
  const Area all{0, 0, width_, height_};
  const bool raised = state_ == State::Raised;
  surface.FillArea(all, kButtonFace);
  DrawEdgeRing(surface, all, raised ? k3DHighlight : k3DDarkShadow, k3DDarkShadow);
  DrawEdgeRing(surface, Inside(all), raised ? k3DLight : kButtonShadow, kButtonShadow);
  Write(lblCaption_.Visible, !lblCaption_.Caption.empty());
  if (!lblCaption_.Visible) return;
  CenterLabel(surface);
  surface.WriteText({lblCaption_.Left, lblCaption_.Top}, lblCaption_.Caption, LabelFont(),
                    lblCaption_.ForeColor);
}

void ctrlButton::Repaint() {
  if (host_) host_->Invalidate();
}

// --- Mouse ---

void ctrlButton::MouseDown() {
  if (host_) host_->CaptureMouse();
  pressed_ = true;
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
  if (!IsInside(x, y)) return;
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
