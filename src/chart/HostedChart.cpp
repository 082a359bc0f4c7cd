#include "chart/HostedChart.h"

#include "chart/ctrlStormwaterReuse.h"

namespace orvik {

HostedChart::HostedChart(Toolkit& toolkit, std::string_view name, ctrlStormwaterReuse& chart)
    : host_(toolkit.MakeControlHost(name)), chart_(chart) {
  chart_.AttachHost(host_.get());
  host_->OnPaint = [this](Surface& surface) { chart_.PaintScreen(surface); };
  host_->OnResize = [this](int width, int height) { chart_.Resize(width, height); };
  host_->OnMouseDown = [this](std::int16_t button, double x, double y) {
    chart_.MouseDown(button, x, y);
  };
  host_->OnMouseMove = [this](double x, double y) { chart_.MouseMove(x, y); };
  host_->OnMouseUp = [this](std::int16_t, double, double) { chart_.MouseUp(); };
  host_->OnCaptureLost = [this] { chart_.CaptureLost(); };
  host_->OnKeyDown = [this](std::int16_t keyCode) { chart_.KeyDown(keyCode); };
  host_->OnKeyUp = [this](std::int16_t keyCode) { chart_.KeyUp(keyCode); };
  host_->OnGotFocus = [this] { chart_.GotFocus(); };
  host_->OnLostFocus = [this] { chart_.LostFocus(); };
  host_->OnCopy = [this] {
    if (OnCopy) OnCopy();
  };
  host_->ReadAloud = [this] { return ReadAloud ? ReadAloud() : Spoken{}; };
  host_->WantsKey = [this](std::int16_t keyCode) { return chart_.WantsKey(keyCode); };
}

HostedChart::~HostedChart() {
  chart_.AttachHost(nullptr);
}

}  // namespace orvik
