#include "chart/ScreenMarks.h"

#include <utility>

#include "chart/HotspotDrawing.h"
#include "platform/Host.h"

namespace orvik {

void ScreenMarks::Repaint() {
  highlight_.reset();
  if (host_) host_->Invalidate();
}

void ScreenMarks::ToggleHotspot(FramePixel pixel, const clsRectangle_Integer& frame) {
  if (Surface* screen = Screen()) {
    RemoveHighlight();
    DrawHotspot(*screen, pixel, frame, kHotspotPenWidth);
  } else {
    Repaint();
  }
}

void ScreenMarks::ShowHighlight(const EfficiencyCurve& curve, const PlotGeometry& geometry) {
  Surface* screen = Screen();
  if (highlight_ || !screen) return;
  Highlight shown{curve, geometry};
  SampleCurve(shown.curve);
  if (DrawHighlightCurve(*screen, shown.curve, geometry)) highlight_ = std::move(shown);
}

void ScreenMarks::RemoveHighlight() {
  const auto shown = std::exchange(highlight_, std::nullopt);
  Surface* screen = Screen();
  if (shown && screen) DrawHighlightCurve(*screen, shown->curve, shown->geometry);
}

// The screen, if what is drawn on it between two paintings can be taken away again.
Surface* ScreenMarks::Screen() const {
  Surface* screen = host_ ? host_->DrawNow() : nullptr;
  return screen && screen->Supports(SurfaceFeature::ExclusiveOr) ? screen : nullptr;
}

}  // namespace orvik
