#include "controls/HostedButton.h"

#include <utility>

namespace orvik {

HostedButton::HostedButton(Toolkit& toolkit, std::string_view name, std::string_view caption,
                           std::function<void()> onClick)
    : host_(toolkit.MakeControlHost(name)), button_(toolkit.MakeTimer()) {
  button_.AttachHost(host_.get());
  button_.Caption(caption);
  button_.OnClick = std::move(onClick);
  host_->OnPaint = [this](Surface& surface) { button_.Paint(surface, host_->Enabled()); };
  host_->OnResize = [this](int width, int height) { button_.Resize(width, height); };
  host_->OnMouseDown = [this](std::int16_t button, double, double) {
    if (button == ControlHost::kLeftButton) button_.MouseDown();
  };
  host_->OnMouseMove = [this](double x, double y) { button_.MouseMove(x, y); };
  host_->OnMouseUp = [this](std::int16_t button, double x, double y) {
    if (button == ControlHost::kLeftButton) button_.MouseUp(x, y);
  };
  host_->OnCaptureLost = [this] { button_.CaptureLost(); };
  host_->OnKeyDown = [this](std::int16_t keyCode) { button_.KeyDown(keyCode); };
  host_->OnKeyUp = [this](std::int16_t keyCode) { button_.KeyUp(keyCode); };
  host_->OnLostFocus = [this] { button_.LostFocus(); };
  host_->OnMnemonic = [this] { button_.Click(); };
  host_->OnFont = [this](const Font& font) { button_.CaptionFont(font); };
  host_->ReadAloud = [this] { return Spoken{button_.Caption(), {}}; };
  host_->WantsKey = &ctrlButton::WantsKey;
}

HostedButton::~HostedButton() {
  button_.AttachHost(nullptr);
}

}  // namespace orvik
