// The places of the main window's widgets: Form_Resize, picToolbar_Resize and picData_Resize as
// pure functions of the window's inner size and the measures of its text.
#pragma once

#include <vector>

#include "platform/FormDesign.h"

namespace orvik {

// The inner size below which something would be cut off or covered.
Size MinimumMainWindow(const TextMeasures& measures);

// The inner size in which everything has ample room, and the chart's numbers can be read.
Size ComfortableMainWindow(const TextMeasures& measures);

// A place for every widget of both pages, whichever of them shows. The inner size counts as at
// least the minimum.
std::vector<Placement> LayOutMainWindow(Size inner, const TextMeasures& measures);

}  // namespace orvik
