// The design point of a project: where it lies on the design chart, and the outcome of the last
// question about it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "design/Messages.h"
#include "engine/EfficiencyCurve.h"
#include "engine/FramePixel.h"

namespace orvik {

class FramedCurves;
class PlotGeometry;

// V (inches on the EIA) and R (inches per day on the EIA) are the master copy of its place; the
// pixel follows from them. They stay while the point is hidden.
struct DesignPoint {
  bool isShown = false;
  double V = 0;
  double R = 0;
  FramePixel pixel;
  double E = 0;  // percent; the last one that was solved
  // Through the point, of its E; not sampled. Nothing where the point's E is undefined.
  std::optional<EfficiencyCurve> curve;
  Message message;  // the last outcome

  bool HasE() const { return isShown && curve.has_value(); }
};

// Puts the point at chart coordinates or moves it by whole pixels, where only a coordinate that
// moved is computed anew from its pixel. Both throw OverflowError where its mark would leave the
// 16-bit pixels; the point then stays where it was.
void PlaceAt(DesignPoint& point, double V, double R, const PlotGeometry& geometry);
void MoveBy(DesignPoint& point, int dX, int dY, const PlotGeometry& geometry);

// Forgets its E, which was found on other curves or at another place.
void ForgetE(DesignPoint& point);

// Finds E where the point lies. False, with E undefined and the reason in its message, where it
// lies between no two curves. Throws NumericError where the curves cannot be used.
bool LocateE(DesignPoint& point, const FramedCurves& curves);

// Each places the point from two known quantities and answers with the third as text, in single
// precision. Nothing where the question has no answer: the message says why, and the point is
// hidden unless it lies on the chart between no two curves. `curves` is null where none are loaded.
// Throws NumericError where the curves cannot be used.
std::optional<std::string> PlaceUsingRV(DesignPoint& point, const FramedCurves* curves, double R,
                                        double V);
// The efficiency is a text (its numeric prefix counts, else 0), which the message repeats.
std::optional<std::string> PlaceUsingER(DesignPoint& point, const FramedCurves* curves,
                                        std::string_view E, double R);
std::optional<std::string> PlaceUsingEV(DesignPoint& point, const FramedCurves* curves,
                                        std::string_view E, double V);

// The point's values in single precision, as fields and files hold them; 0 where the point is
// hidden (E: also where it is undefined).
float SingleR(const DesignPoint& point);
float SingleV(const DesignPoint& point);
float SingleE(const DesignPoint& point);

}  // namespace orvik
