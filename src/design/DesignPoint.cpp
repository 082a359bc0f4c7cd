#include "design/DesignPoint.h"

#include <utility>

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "design/OutcomeMessage.h"
#include "engine/Solver.h"

namespace orvik {
namespace {

// What a refusal leaves: the point is hidden, its last E stays.
std::nullopt_t Refuse(DesignPoint& point, Message message) {
  point.isShown = false;
  point.message = std::move(message);
  return std::nullopt;
}

void TakeE(DesignPoint& point, double E, EfficiencyCurve curve) {
  point.E = E;
  point.curve = std::move(curve);
  point.message = {MessageId::Success};
}

void Show(DesignPoint& point, Solution solution, const FramedCurves& curves) {
  PlaceAt(point, solution.V, solution.R, curves.Geometry());
  point.isShown = true;
  TakeE(point, solution.E, std::move(solution.curve));
}

}  // namespace

// --- Its place ---

void PlaceAt(DesignPoint& point, double V, double R, const PlotGeometry& geometry) {
  point.pixel = PixelOfMark(V, R, geometry);
  point.V = V;
  point.R = R;
}

void MoveBy(DesignPoint& point, int dX, int dY, const PlotGeometry& geometry) {
  point.pixel = WithRoomForMark({ToInt16(point.pixel.x + dX), ToInt16(point.pixel.y + dY)});
  if (dX != 0) point.V = geometry.XFrameToXPlot(point.pixel.x);
  if (dY != 0) point.R = geometry.YFrameToYPlot(point.pixel.y);
}

void ForgetE(DesignPoint& point) {
  point.curve.reset();
}

bool LocateE(DesignPoint& point, const FramedCurves& curves) {
  ForgetE(point);
  auto found = Solver(&curves).Locate(point.V, point.R, point.pixel);
  if (!found) {
    point.message = {MessageId::PlacedPointOffCurves};
    return false;
  }
  TakeE(point, found->E, std::move(found->curve));
  return true;
}

// --- The three questions ---

std::optional<std::string> PlaceUsingRV(DesignPoint& point, const FramedCurves* curves, double R,
                                        double V) {
  const Outcome checked = Solver(curves).CheckRV(R, V);
  if (!checked.IsSolved()) return Refuse(point, MessageOf(checked));
  point.isShown = true;
  PlaceAt(point, V, R, curves->Geometry());
  if (LocateE(point, *curves)) return ConvertToString(SingleE(point));
  point.message = {MessageId::PointOffCurves};
  return std::nullopt;
}

std::optional<std::string> PlaceUsingER(DesignPoint& point, const FramedCurves* curves,
                                        std::string_view E, double R) {
  Answer answer = Solver(curves).FindV(ParseNumber(E), R);
  if (!answer.solution) return Refuse(point, MessageOf(answer.outcome, E));
  Show(point, std::move(*answer.solution), *curves);
  return ConvertToString(SingleV(point));
}

std::optional<std::string> PlaceUsingEV(DesignPoint& point, const FramedCurves* curves,
                                        std::string_view E, double V) {
  Answer answer = Solver(curves).FindR(ParseNumber(E), V);
  if (!answer.solution) return Refuse(point, MessageOf(answer.outcome, E));
  Show(point, std::move(*answer.solution), *curves);
  return ConvertToString(SingleR(point));
}

// --- Its values ---

float SingleR(const DesignPoint& point) {
  return point.isShown ? ToSingle(point.R) : 0;
}

float SingleV(const DesignPoint& point) {
  return point.isShown ? ToSingle(point.V) : 0;
}

float SingleE(const DesignPoint& point) {
  return point.HasE() ? ToSingle(point.E) : 0;
}

}  // namespace orvik
