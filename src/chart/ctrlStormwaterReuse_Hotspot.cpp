// The hotspot under the user's hand: mouse, keys and the marks that come and go between two
// paintings.
#include <utility>

#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "chart/HotspotDrawing.h"
#include "chart/ctrlStormwaterReuse.h"

namespace orvik {
namespace {

constexpr std::int16_t kLeftButton = 1;
constexpr std::int16_t kKeyEscape = 27;
constexpr std::int16_t kKeySpace = 32;  // shows the highlight
constexpr std::int16_t kKeyLeft = 37;
constexpr std::int16_t kKeyUp = 38;
constexpr std::int16_t kKeyRight = 39;
constexpr std::int16_t kKeyDown = 40;

void Raise(const std::function<void()>& event) {
  if (event) event();
}

bool HasExtent(const clsRectangle_Integer& frame) {
  return frame.Left < frame.Right && frame.Top < frame.Bottom;
}

}  // namespace

void ctrlStormwaterReuse::InteractiveMode(Boolean16 on) {
  const bool interactive = on != kFalse16;
  if (interactive == interactive_) return;
  interactive_ = interactive;
  Refresh();  // the background differs
}

void ctrlStormwaterReuse::UserMode(Boolean16 on) {
  userMode_ = on != kFalse16;
  Refresh();
}

void ctrlStormwaterReuse::BackgroundPicture(std::optional<Picture> picture) {
  backgroundPicture_ = std::move(picture);
  Refresh();
}

void ctrlStormwaterReuse::HideHotSpot() {
  if (IsHotspotShown()) ToggleHotspot();
  hotspotVisible_ = false;
}

// --- Mouse ---

void ctrlStormwaterReuse::MouseDown(std::int16_t button, double x, double y) {
  if (!interactive_ || button != kLeftButton || !TakesPoint(x, y)) return;
  if (IsHotspotShown()) ToggleHotspot();
  if (host_) host_->CaptureMouse();
  mouseCaptured_ = true;
  beforeDrag_ = DesignPoint{hotspotVisible_, hotspot_.V(), hotspot_.R(),   isEDefined_, E_,
                            highlightCurve_, errMsg_,      helpTopicIndex_};
  PlaceByMouse(x, y);
  Raise(OnMousePressed);
}

// Outside the frame the hotspot waits where it was until the mouse comes back.
void ctrlStormwaterReuse::MouseMove(double x, double y) {
  if (!mouseCaptured_ || !TakesPoint(x, y)) return;
  if (IsHotspotShown()) ToggleHotspot();
  PlaceByMouse(x, y);
}

void ctrlStormwaterReuse::MouseUp() {
  if (!mouseCaptured_) return;
  // The flag first: giving the mouse back makes the system report its loss.
  mouseCaptured_ = false;
  if (host_) host_->ReleaseMouse();
  Raise(OnMouseReleased);
}

void ctrlStormwaterReuse::CaptureLost() {
  if (!mouseCaptured_) return;
  mouseCaptured_ = false;
  Raise(OnMouseReleased);
}

// Is the point, rounded to pixels, in a frame that can tell its V and R? Points beyond 16-bit
// pixels are not.
bool ctrlStormwaterReuse::TakesPoint(double x, double y) const {
  const clsRectangle_Integer& frame = geometry_.Frame();
  const double X = RoundHalfToEven(x);
  const double Y = RoundHalfToEven(y);
  return isLoaded_ && HasExtent(frame) && frame.Left <= X && X <= frame.Right && frame.Top <= Y &&
         Y <= frame.Bottom;
}

void ctrlStormwaterReuse::PlaceByMouse(double x, double y) {
  const double V = geometry_.XFrameToXPlot(ToInt16(x));
  const double R = geometry_.YFrameToYPlot(ToInt16(y));
  hotspotVisible_ = true;
  hotspot_.PlaceAt(V, R, geometry_);
  EvaluateE();
  ToggleHotspot();
  Raise(OnChange);
}

void ctrlStormwaterReuse::CancelDrag() {
  if (!mouseCaptured_) return;
  mouseCaptured_ = false;
  if (host_) host_->ReleaseMouse();
  if (beforeDrag_) {
    if (IsHotspotShown()) ToggleHotspot();
    PutBack(*std::exchange(beforeDrag_, std::nullopt));
    if (IsHotspotShown()) ToggleHotspot();
    Raise(OnChange);
  }
  Raise(OnMouseReleased);
}

void ctrlStormwaterReuse::PutBack(DesignPoint point) {
  hotspotVisible_ = point.hotspotVisible;
  isEDefined_ = point.isEDefined;
  E_ = point.E;
  highlightCurve_ = std::move(point.highlightCurve);
  errMsg_ = std::move(point.errMsg);
  helpTopicIndex_ = point.helpTopicIndex;
  if (hotspotVisible_) PlaceWithinPixels(point.V, point.R);
}

// --- Keys ---

void ctrlStormwaterReuse::KeyDown(std::int16_t keyCode) {
  switch (keyCode) {
    case kKeyRight:
      return StepHotspot(1, 0);
    case kKeyLeft:
      return StepHotspot(-1, 0);
    case kKeyUp:
      return StepHotspot(0, -1);
    case kKeyDown:
      return StepHotspot(0, 1);
    case kKeySpace:
      return ShowHighlight();
    case kKeyEscape:
      return CancelDrag();
    default:
      return;
  }
}

bool ctrlStormwaterReuse::WantsKey(std::int16_t keyCode) const {
  if (keyCode == kKeyEscape) return mouseCaptured_;
  return keyCode == kKeySpace || (kKeyLeft <= keyCode && keyCode <= kKeyDown);
}

void ctrlStormwaterReuse::KeyUp(std::int16_t keyCode) {
  if (keyCode == kKeySpace) RemoveHighlight();
}

// The release of a held Space bar will go to the window that has the focus now.
void ctrlStormwaterReuse::LostFocus() {
  hasFocus_ = false;
  RemoveHighlight();
}

void ctrlStormwaterReuse::StepHotspot(int dX, int dY) {
  if (!IsHotspotShown() || !TakesPoint(hotspot_.X() + dX, hotspot_.Y() + dY)) return;
  ToggleHotspot();
  hotspot_.MoveBy(dX, dY, geometry_);
  EvaluateE();
  ToggleHotspot();
  Raise(OnChange);
}

// An unusable curve file (curves that meet, samples beyond 16-bit pixels) has no efficiency here;
// the point itself stands, the drag goes on, and GetE answers False.
void ctrlStormwaterReuse::EvaluateE() {
  try {
    LocateHotspot();
  } catch (const NumericError&) {
    ForgetE();
    FailLocation();
  }
}

// --- Marks between two paintings ---

void ctrlStormwaterReuse::ShowHighlight() {
  if (highlightShown_ || !IsHotspotShown() || !isEDefined_) return;
  highlightShown_ = DrawHighlight();
}

void ctrlStormwaterReuse::RemoveHighlight() {
  if (highlightShown_) DrawHighlight();
  highlightShown_ = false;
}

bool ctrlStormwaterReuse::DrawHighlight() {
  Surface* surface = TransientSurface();
  return surface && highlightCurve_ && DrawHighlightCurve(*surface, *highlightCurve_, geometry_);
}

void ctrlStormwaterReuse::ToggleHotspot() {
  if (Surface* surface = TransientSurface()) {
    RemoveHighlight();
    DrawHotspot_Screen(*surface);
  } else {
    Refresh();
  }
}

// The screen, if what is drawn on it between two paintings can be taken away again.
Surface* ctrlStormwaterReuse::TransientSurface() const {
  Surface* surface = host_ ? host_->DrawNow() : nullptr;
  return surface && surface->Supports(SurfaceFeature::ExclusiveOr) ? surface : nullptr;
}

// A painting of everything is on its way, and draws no highlight.
void ctrlStormwaterReuse::Refresh() {
  highlightShown_ = false;
  if (host_) host_->Invalidate();
}

}  // namespace orvik
