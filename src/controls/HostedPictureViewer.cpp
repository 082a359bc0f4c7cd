#include "controls/HostedPictureViewer.h"

#include <cmath>
#include <utility>

namespace orvik {

HostedPictureViewer::HostedPictureViewer(Toolkit& toolkit, std::string_view name, std::string title)
    : host_(toolkit.MakeControlHost(name)), title_(std::move(title)) {
  viewer_.AttachHost(host_.get());
  host_->OnPaint = [this](Surface& surface) { viewer_.Paint(surface); };
  host_->OnResize = [this](int width, int height) { viewer_.Resize(width, height); };
  host_->OnMouseDown = [this](std::int16_t button, double x, double y) {
    if (button == ControlHost::kLeftButton) viewer_.MouseDown(x, y);
  };
  host_->OnMouseMove = [this](double x, double y) { viewer_.MouseMove(x, y); };
  host_->OnMouseUp = [this](std::int16_t button, double, double) {
    if (button == ControlHost::kLeftButton) viewer_.MouseUp();
  };
  host_->OnDoubleClick = [this] { viewer_.DoubleClick(); };
  host_->OnMouseWheel = [this](double notches, double x, double y) {
    viewer_.MouseWheel(notches, x, y);
  };
  host_->OnCaptureLost = [this] { viewer_.CaptureLost(); };
  host_->OnKeyDown = [this](std::int16_t keyCode) { viewer_.KeyDown(keyCode); };
  host_->WantsKey = &ctrlPictureViewer::WantsKey;
  host_->Pointer = [this] { return viewer_.Pointer(); };
  host_->ReadAloud = [this] { return ReadAloud(); };
}

HostedPictureViewer::~HostedPictureViewer() {
  viewer_.AttachHost(nullptr);
}

Spoken HostedPictureViewer::ReadAloud() const {
  const PictureView& view = viewer_.View();
  if (view.IsEmpty()) return {title_, "no picture", true};
  constexpr double kPercent = 100;
  return {title_, "zoom " + std::to_string(std::lround(view.Zoom() * kPercent)) + " %", true};
}

}  // namespace orvik
