#include "shell/ChartCopy.h"

#include "base/NumberText.h"
#include "chart/ctrlStormwaterReuse.h"
#include "platform/Desktop.h"
#include "platform/Toolkit.h"

namespace orvik {
namespace {

// A point beyond the curves has no efficiency.
std::string PointSentence(const ctrlStormwaterReuse& chart) {
  float R = 0;
  float V = 0;
  float E = 0;
  if (!chart.GetR(R) || !chart.GetV(V)) return "no design point";
  const std::string efficiency = chart.GetE(E) ? ConvertToString(E) + " %" : "undefined";
  return "R " + ConvertToString(R) + " in/day, V " + ConvertToString(V) + " in, E " + efficiency;
}

}  // namespace

std::string ChartPointText(const ctrlStormwaterReuse& chart) {
  const auto text = [](bool isDefined, float value) {
    return isDefined ? ConvertToString(value) : std::string();
  };
  float R = 0;
  float V = 0;
  float E = 0;
  const bool hasR = chart.GetR(R);
  const bool hasV = chart.GetV(V);
  const bool hasE = chart.GetE(E);
  return "R (in/day)\tV (in)\tE (%)\r\n" + text(hasR, R) + "\t" + text(hasV, V) + "\t" +
         text(hasE, E) + "\r\n";
}

Spoken SpokenChart(const ctrlStormwaterReuse& chart) {
  if (!chart.IsLoaded()) return {"Design chart", "no climate station"};
  return {"Design chart of " + chart.StationName(), PointSentence(chart)};
}

void CopyChart(const ctrlStormwaterReuse& chart, Desktop& desktop) {
  if (!chart.IsLoaded()) return;
  const bool isCopied = desktop.CopyToClipboard({ChartPointText(chart), chart.ControlSize(),
                                                 [&](Surface& surface) { chart.Paint(surface); }});
  if (!isCopied) desktop.Beep();
}

}  // namespace orvik
