#include "curves/CurveLabels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "base/NumberText.h"
#include "engine/ChartShape.h"
#include "engine/CurveSet.h"

namespace orvik {
namespace {

// The box of a label's line is a little higher than its text. Its width follows from the text and
// the frame's shape.
constexpr double kLineHeightR = 1.15 * kLabelHeight;
constexpr double kCharacterShape = 0.58;  // width of a character over the height of the text
constexpr double kClearanceR = 0.0012;    // between a label and its own curve
constexpr double kEnoughRoomR = 0.003;    // above a label
constexpr double kNearlyR = 0.0001;       // less than a pixel in a chart of usual size
constexpr double kColumnShare = 0.5;      // of the V axis
constexpr double kDecimals = 1e4;         // positions are written with four decimals

double TextWidthV(const CurveSet& set, std::size_t characters) {
  const double heightShare = kLabelHeight / (set.RMax - set.RMin);
  return static_cast<double>(characters) * kCharacterShape * heightShare / kFrameShape *
         (set.VMax - set.VMin);
}

double RoundPosition(double value) {
  return std::round(value * kDecimals) / kDecimals;
}

// Room in R above a label on curve i at V; negative where the label does not fit.
double RoomAbove(const CurveSet& set, std::size_t i, double V, double width) {
  const double top = CurveR(V, set.curves[i]) + kClearanceR + kLineHeightR;
  const double frame = set.RMax - top;
  if (i + 1 >= set.curves.size()) return frame;
  const EfficiencyCurve& next = set.curves[i + 1];
  // The next curve falls too: it comes closest at the label's right end.
  const double right = std::clamp(V + width, next.VStart, next.VEnd);
  return std::min(frame, CurveR(right, next) - top);
}

// V of curve i's label: of the places with enough room (or, where there is none, with nearly as
// much as the best) the one nearest to the labels' common column.
double LabelV(const CurveSet& set, std::size_t i, double width) {
  const EfficiencyCurve& curve = set.curves[i];
  const double last = std::max(curve.VStart, std::min(curve.VEnd, set.VMax) - width);
  constexpr int kSteps = 200;
  std::vector<double> places;
  std::vector<double> rooms;
  for (int k = 0; k <= kSteps; ++k) {
    places.push_back(curve.VStart + (last - curve.VStart) * k / kSteps);
    rooms.push_back(RoomAbove(set, i, places.back(), width));
  }
  const double enough = std::min(*std::ranges::max_element(rooms) - kNearlyR, kEnoughRoomR);
  const double column = set.VMin + kColumnShare * (set.VMax - set.VMin);
  double best = places.front();
  double leastDistance = std::numeric_limits<double>::infinity();
  for (std::size_t k = 0; k < places.size(); ++k) {
    const double distance = std::fabs(places[k] - column);
    if (rooms[k] < enough || distance >= leastDistance) continue;
    leastDistance = distance;
    best = places[k];
  }
  return best;
}

CurveLabel PlaceLabel(const CurveSet& set, std::size_t i) {
  const EfficiencyCurve& curve = set.curves[i];
  CurveLabel label{"E=" + ConvertToString(curve.E) + "%", 0, 0};
  label.V = RoundPosition(LabelV(set, i, TextWidthV(set, label.Text.size())));
  const double R = CurveR(std::max(label.V, curve.VStart), curve) + kClearanceR + kLineHeightR;
  label.R = RoundPosition(std::min(set.RMax, R));
  return label;
}

}  // namespace

void PlaceLabels(CurveSet& set) {
  set.labels.clear();
  for (std::size_t i = 0; i < set.curves.size(); ++i) set.labels.push_back(PlaceLabel(set, i));
}

}  // namespace orvik
