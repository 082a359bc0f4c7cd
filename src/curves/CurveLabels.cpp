#include "curves/CurveLabels.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"

namespace orvik {
namespace {

// A label's text has the height of 0.008 in/day on the chart, whatever the chart's range; the box
// of a line is a little higher. Its width follows from the text and the frame's shape of 4:3.
constexpr double kTextHeightR = 0.008;
constexpr double kLineHeightR = 1.15 * kTextHeightR;
constexpr double kCharacterShape = 0.58;  // width of a character over the height of the text
constexpr double kFrameShape = 4.0 / 3.0;
constexpr double kClearanceR = 0.0012;  // between a label and its own curve
constexpr double kDecimals = 1e4;       // positions are written with four decimals

double TextWidthV(const CurveSet& set, std::size_t characters) {
  const double heightShare = kTextHeightR / (set.RMax - set.RMin);
  return static_cast<double>(characters) * kCharacterShape * heightShare / kFrameShape *
         (set.VMax - set.VMin);
}

double RoundPosition(double value) {
  return std::round(value * kDecimals) / kDecimals;
}

// Room in R above a label that stands on curve i at V; negative where it does not fit.
double RoomAbove(const CurveSet& set, std::size_t i, double V, double width) {
  const double top = CurveR(V, set.Curves[i]) + kClearanceR + kLineHeightR;
  const double frame = set.RMax - top;
  if (i + 1 >= set.Curves.size()) return frame;
  const EfficiencyCurve& next = set.Curves[i + 1];
  const double right = std::clamp(V + width, next.VStart, next.VEnd);
  return std::min(frame, CurveR(right, next) - top);
}

CurveLabel PlaceLabel(const CurveSet& set, std::size_t i) {
  const EfficiencyCurve& curve = set.Curves[i];
  CurveLabel label{"E=" + ConvertToString(curve.E) + "%", curve.VStart, 0};
  const double width = TextWidthV(set, label.Text.size());
  const double last = std::max(curve.VStart, std::min(curve.VEnd, set.VMax) - width);
  constexpr int kSteps = 200;
  double bestRoom = -set.RMax;
  for (int k = 0; k <= kSteps; ++k) {
    const double V = curve.VStart + (last - curve.VStart) * k / kSteps;
    const double room = RoomAbove(set, i, V, width);
    if (room <= bestRoom) continue;
    bestRoom = room;
    label.V = V;
  }
  label.R = std::min(set.RMax, CurveR(label.V, curve) + kClearanceR + kLineHeightR);
  label.V = RoundPosition(label.V);
  label.R = RoundPosition(label.R);
  return label;
}

}  // namespace

void PlaceLabels(CurveSet& set) {
  set.Labels.clear();
  for (std::size_t i = 0; i < set.Curves.size(); ++i) set.Labels.push_back(PlaceLabel(set, i));
}

}  // namespace orvik
