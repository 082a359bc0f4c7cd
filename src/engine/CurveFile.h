// Reads a station's curve file (".crv").
#pragma once

#include <cstdint>

namespace orvik {

class clsIOStream;
struct CurveSet;

// Why a curve file cannot be used.
enum class CurveFault : std::uint8_t {
  None,
  EndsBeforeCurves,  // within the title, the axes or the number of curves
  EndsWithinCurves,
  EndsWithinLabels,
  AxisWithoutExtent,  // a maximum that is not above its minimum
  NoCurves,
  UnusableNumber,  // one that is not finite, or a VStart that is not above 0
  LabelWithoutPlace,
};

struct CurveReading {
  CurveFault fault = CurveFault::None;
  bool hasLabelCount = false;   // a file that ends right after its last curve has none
  bool endsWithinLine = false;  // its last line has no line end
  bool IsUsable() const { return fault == CurveFault::None; }
};

// Reads the curve set from a stream opened on a file. Layout, one line each: title; V minimum, V
// maximum, V interval, R minimum, R maximum, R interval; number of curves; for each curve E,
// VStart, VEnd, A, B, C, D; number of labels; for each label its text and its position "V,R". E and
// the two counts are delimited fields. A number that is not one reads as 0. A file may end right
// after the last line of its last curve: it has no labels then.
//
// With a fault `set` is incomplete.
CurveReading ReadCurveFile(clsIOStream& stream, CurveSet& set);

}  // namespace orvik
