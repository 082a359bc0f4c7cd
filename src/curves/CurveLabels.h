// Puts one label to each curve of a set, where there is room for it.
#pragma once

namespace orvik {

struct CurveSet;

// Replaces the set's labels by one "E=80%" for each curve. A label's position is its upper left
// corner; it stands above its own curve and below the next one, in the middle of the chart or as
// near to it as there is room. Requires at least one curve; the limits of the set decide the size
// of the text.
void PlaceLabels(CurveSet& set);

}  // namespace orvik
