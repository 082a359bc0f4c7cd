// Puts a label beside each curve of a set, where there is room for it.
#pragma once

namespace orvik {

struct CurveSet;

// Replaces the set's labels by one "E=80%" for each curve. A label's position is its upper left
// corner; it is placed above its own curve and below the next one, in the middle of the chart or as
// near to it as there is room. Requires at least one curve; the size of the text follows from the
// limits of the set.
void PlaceLabels(CurveSet& set);

}  // namespace orvik
