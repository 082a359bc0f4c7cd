// The chart's picture on a screen or in a file.
#pragma once

namespace orvik {

class Surface;
struct ChartScene;
struct Size;

// Everything within the control's border: title, frame, grid and ticks, axis texts, curves, their
// ends, and labels.
void PaintDesignChart(Surface& surface, const ChartScene& scene, Size control);

// The sunken border round the control.
void PaintBorder(Surface& surface, Size control);

}  // namespace orvik
