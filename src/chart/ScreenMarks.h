// What is on the screen between two paintings: the hotspot's mark while it moves, and the curve
// through it while the Space bar is held. Both are drawn exclusive-or, so that drawing them again
// takes them away.
#pragma once

#include <optional>

#include "engine/EfficiencyCurve.h"
#include "engine/FramePixel.h"
#include "engine/PlotGeometry.h"

namespace orvik {

class Host;
class Surface;

inline constexpr int kHotspotPenWidth = 1;  // pixels

class ScreenMarks {
 public:
  // The window that shows the control, null for none. It outlives the control or is taken away
  // before it goes.
  void AttachHost(Host* host) { host_ = host; }
  Host* AttachedHost() const { return host_; }

  // Has everything painted again soon, which draws no highlight.
  void Repaint();

  // Everything is painted now; a highlight is gone with it.
  void PaintedOver() { highlight_.reset(); }

  // Draws the hotspot at this pixel, or takes it away where it is; a highlight goes first. Where
  // the screen cannot take marks away everything is painted again.
  void ToggleHotspot(FramePixel pixel, const clsRectangle_Integer& frame);

  // Shows the curve of these parameters, unless one is shown.
  void ShowHighlight(const EfficiencyCurve& curve, const PlotGeometry& geometry);
  void RemoveHighlight();

 private:
  struct Highlight {
    EfficiencyCurve curve;  // sampled
    PlotGeometry geometry;
  };

  Surface* Screen() const;

  Host* host_ = nullptr;
  std::optional<Highlight> highlight_;  // what is drawn
};

}  // namespace orvik
