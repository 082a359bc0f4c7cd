// Reads a station's curve file (".crv").
#pragma once

namespace orvik {

class clsIOStream;
struct CurveSet;

// Reads the curve set from a stream opened on a file. Layout, one line each: title; V minimum, V
// maximum, V interval, R minimum, R maximum, R interval; number of curves; for each curve E,
// VStart, VEnd, A, B, C, D; number of labels; for each label its text and its position "V,R". E and
// the two counts are delimited fields. A number that is not one reads as 0.
//
// False when the set cannot be used: the file ends early, no curves, a number that is not finite, a
// VStart that is not positive, limits that leave no chart (maximum not above minimum), a label
// without a position. `set` is then incomplete.
bool ReadCurveFile(clsIOStream& stream, CurveSet& set);

}  // namespace orvik
