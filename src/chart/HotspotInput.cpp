#include "chart/HotspotInput.h"

#include <utility>

#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "platform/Host.h"

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

// --- Mouse ---

void HotspotInput::MouseDown(std::int16_t button, double x, double y) {
  if (!interactive_ || button != kLeftButton || !TakesPoint(x, y)) return;
  ToggleHotspot();
  if (Host* host = marks_.AttachedHost()) host->CaptureMouse();
  mouseCaptured_ = true;
  beforeDrag_ = state_.point;
  PlaceByMouse(x, y);
  Raise(OnMousePressed);
}

// Outside the frame the hotspot waits where it was until the mouse comes back.
void HotspotInput::MouseMove(double x, double y) {
  if (!mouseCaptured_ || !TakesPoint(x, y)) return;
  ToggleHotspot();
  PlaceByMouse(x, y);
}

void HotspotInput::MouseUp() {
  if (!mouseCaptured_) return;
  // The flag first: giving the mouse back makes the system report its loss.
  mouseCaptured_ = false;
  if (Host* host = marks_.AttachedHost()) host->ReleaseMouse();
  Raise(OnMouseReleased);
}

void HotspotInput::CaptureLost() {
  if (!mouseCaptured_) return;
  mouseCaptured_ = false;
  Raise(OnMouseReleased);
}

// Is the point, rounded to pixels, in a frame that can tell its V and R? Points beyond 16-bit
// pixels are not.
bool HotspotInput::TakesPoint(double x, double y) const {
  if (!state_.curves) return false;
  const clsRectangle_Integer& frame = state_.curves->Geometry().Frame();
  const double X = RoundHalfToEven(x);
  const double Y = RoundHalfToEven(y);
  return HasExtent(frame) && frame.Left <= X && X <= frame.Right && frame.Top <= Y &&
         Y <= frame.Bottom;
}

void HotspotInput::PlaceByMouse(double x, double y) {
  const PlotGeometry& geometry = state_.curves->Geometry();
  const double V = geometry.XFrameToXPlot(ToInt16(x));
  const double R = geometry.YFrameToYPlot(ToInt16(y));
  state_.point.isShown = true;
  PlaceAt(state_.point, V, R, geometry);
  EvaluateE();
  ToggleHotspot();
  Raise(OnChange);
}

void HotspotInput::CancelDrag() {
  if (!mouseCaptured_) return;
  mouseCaptured_ = false;
  if (Host* host = marks_.AttachedHost()) host->ReleaseMouse();
  if (beforeDrag_) {
    ToggleHotspot();
    state_.point = *std::exchange(beforeDrag_, std::nullopt);
    ReplaceInFrame(state_);  // the frame may have changed during the drag
    ToggleHotspot();
    Raise(OnChange);
  }
  Raise(OnMouseReleased);
}

// --- Keys ---

void HotspotInput::KeyDown(std::int16_t keyCode) {
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
      if (state_.IsPointOnChart() && state_.point.HasE()) {
        marks_.ShowHighlight(*state_.point.curve, state_.curves->Geometry());
      }
      return;
    case kKeyEscape:
      return CancelDrag();
    default:
      return;
  }
}

bool HotspotInput::WantsKey(std::int16_t keyCode) const {
  if (keyCode == kKeyEscape) return mouseCaptured_;
  return keyCode == kKeySpace || (kKeyLeft <= keyCode && keyCode <= kKeyDown);
}

void HotspotInput::KeyUp(std::int16_t keyCode) {
  if (keyCode == kKeySpace) marks_.RemoveHighlight();
}

// The release of a held Space bar will go to the window that has the focus now.
void HotspotInput::LostFocus() {
  hasFocus_ = false;
  marks_.RemoveHighlight();
}

void HotspotInput::StepHotspot(int dX, int dY) {
  const FramePixel at = state_.point.pixel;
  if (!state_.IsPointOnChart() || !TakesPoint(at.x + dX, at.y + dY)) return;
  ToggleHotspot();
  MoveBy(state_.point, dX, dY, state_.curves->Geometry());
  EvaluateE();
  ToggleHotspot();
  Raise(OnChange);
}

// An unusable curve file (curves that meet, samples beyond 16-bit pixels) has no efficiency here;
// the point itself stands, the drag goes on, and GetE answers False.
void HotspotInput::EvaluateE() {
  try {
    LocateE(state_.point, *state_.curves);
  } catch (const NumericError&) {
    ForgetE(state_.point);
    state_.point.message = {MessageId::PlacedPointOffCurves};
  }
}

void HotspotInput::ToggleHotspot() {
  if (!state_.IsPointOnChart()) return;
  marks_.ToggleHotspot(state_.point.pixel, state_.curves->Geometry().Frame());
}

}  // namespace orvik
