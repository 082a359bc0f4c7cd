// The design point under the user's hand: what mouse and keys do to it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "chart/ChartState.h"
#include "chart/ScreenMarks.h"

namespace orvik {

// Numeric faults of unusable curve files do not leave it: there the point's efficiency is
// undefined.
class HotspotInput {
 public:
  // Both outlive this.
  HotspotInput(ChartState& state, ScreenMarks& marks) : state_(state), marks_(marks) {}

  // True: the mouse places the hotspot.
  bool InteractiveMode() const { return interactive_; }
  void InteractiveMode(bool on) { interactive_ = on; }

  bool MouseCaptured() const { return mouseCaptured_; }
  bool HasFocus() const { return hasFocus_; }

  // See ctrlStormwaterReuse.
  void MouseDown(std::int16_t button, double x, double y);
  void MouseMove(double x, double y);
  void MouseUp();
  void CaptureLost();
  void KeyDown(std::int16_t keyCode);
  void KeyUp(std::int16_t keyCode);
  bool WantsKey(std::int16_t keyCode) const;
  void GotFocus() { hasFocus_ = true; }
  void LostFocus();

  // The curves are others now: a drag can no longer be taken back.
  void ForgetDrag() { beforeDrag_.reset(); }

  // Draws the shown hotspot, or takes it away where it is.
  void ToggleHotspot();

  std::function<void()> OnChange;
  std::function<void()> OnMousePressed;
  std::function<void()> OnMouseReleased;

 private:
  bool TakesPoint(double x, double y) const;
  void PlaceByMouse(double x, double y);
  void CancelDrag();
  void StepHotspot(int dX, int dY);
  void EvaluateE();

  ChartState& state_;
  ScreenMarks& marks_;
  bool interactive_ = false;
  bool mouseCaptured_ = false;
  bool hasFocus_ = false;
  std::optional<DesignPoint> beforeDrag_;  // what a cancelled drag puts back
};

}  // namespace orvik
