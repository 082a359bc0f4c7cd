// The steps that draw the chart's plot; the control and the printed page put them in their order.
#pragma once

#include <span>
#include <vector>

#include "chart/ChartScene.h"
#include "chart/ChartText.h"

namespace orvik {

// The station's name, centred over the frame.
void DrawTitleBlock(Surface& surface, const ChartScene& scene, TextRoom& room);

// Four black lines: top, right, bottom, left.
void DrawPlotFrame(Surface& surface, const clsRectangle_Integer& frame, int penWidth);

// At every step value inside the frame a light line across it, and a black tick that stands on the
// frame's line, inwards. (The frame's own lines mark its ends.)
void DrawGridAndTicks(Surface& surface, const ChartScene& scene);

// Every curve through its samples, within the frame and outside of the spared areas. One with a
// sample beyond 16-bit pixels is left out.
void DrawCurves(Surface& surface, const ChartScene& scene, std::span<const Area> spared = {});

// A dot where a curve begins and where it ends, unless it goes on to the frame.
void DrawCurveEnds(Surface& surface, const ChartScene& scene);

// Every caption with its upper left corner at its pixel, moved as far as it needs to stay off the
// frame's right and bottom lines. One that would leave the room or run into an axis' text is left
// out: half of "E=95%" would be a wrong number.
std::vector<PlacedText> PlaceLabels(Surface& surface, const ChartScene& scene,
                                    const TextRoom& room);

// On cleared paper, so that no line runs through a caption.
void DrawLabels(Surface& surface, std::span<const PlacedText> labels);

}  // namespace orvik
