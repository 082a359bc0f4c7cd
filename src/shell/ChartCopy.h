// The design chart for other programs and for listeners: its picture and its point.
#pragma once

#include <string>

namespace orvik {

class Desktop;
class ctrlStormwaterReuse;
struct Spoken;

// The hotspot's R, V and E as two lines of tab-separated text, captions with units above the
// numbers; what is not defined is empty.
std::string ChartPointText(const ctrlStormwaterReuse& chart);

// The chart for a listener: named by its station, its value the point with units.
Spoken SpokenChart(const ctrlStormwaterReuse& chart);

// Puts the chart on the clipboard as picture and text. Nothing while no curves are loaded; a beep
// where the clipboard is not available.
void CopyChart(const ctrlStormwaterReuse& chart, Desktop& desktop);

}  // namespace orvik
