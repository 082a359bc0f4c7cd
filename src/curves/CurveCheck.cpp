#include "curves/CurveCheck.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/FixedText.h"
#include "base/NumberText.h"
#include "base/PrintableText.h"
#include "curves/ChartAxes.h"
#include "curves/CurveFit.h"
#include "engine/CurveSet.h"

namespace orvik {
namespace {

// In a chart 640 pixels high the frame has some 560 rows: a gap of this share of the range is two
// of them.
constexpr double kLeastGapShare = 1.0 / 250;
constexpr int kPoints = 400;     // volumes at which curves are compared
constexpr double kSlack = 1e-9;  // inches, and inches per day: what rounding can add to a sample

std::string At(double V) {
  return " at V = " + FixedText(V, 2) + " in";
}

class Checker {
 public:
  Checker(const CurveSet& set, std::optional<double> meanRunoff)
      : set_(set), meanRunoff_(meanRunoff) {}

  std::vector<std::string> Run() {
    CheckInterval("V", set_.VMax - set_.VMin, set_.VInterval);
    CheckInterval("R", set_.RMax - set_.RMin, set_.RInterval);
    bool isLowerUsable = false;
    for (std::size_t i = 0; i < set_.curves.size(); ++i) {
      const bool isUsable = CheckNumbers(i);
      if (isUsable) {
        CheckFalling(i);
        CheckLimits(i);
        CheckRunoff(i);
      }
      if (isUsable && isLowerUsable) CheckNeighbours(i);
      isLowerUsable = isUsable;
    }
    for (const CurveLabel& label : set_.labels) CheckLabel(label);
    return std::move(sentences_);
  }

 private:
  void Say(std::string sentence) { sentences_.push_back(std::move(sentence)); }

  // "Curve 3 (E = 60%)".
  std::string Name(std::size_t i) const {
    const float E = set_.curves[i].E;
    return "Curve " + std::to_string(i + 1) +
           (std::isfinite(E) ? " (E = " + ConvertToString(E) + "%)" : "");
  }

  void CheckInterval(const std::string& axis, double range, double interval) {
    if (DividesRange(range, interval)) return;
    Say("The interval of the " + axis + " axis does not divide its range into whole steps, " +
        std::to_string(kMostAxisSteps) + " at most.");
  }

  bool CheckNumbers(std::size_t i) {
    const EfficiencyCurve& curve = set_.curves[i];
    const auto finite = [](double R) { return std::isfinite(R); };
    if (!std::isfinite(curve.E) || !std::ranges::all_of(curve.R, finite)) {
      Say(Name(i) + " has numbers that are not finite.");
      return false;
    }
    if (!(curve.VStart > 0 && curve.VEnd > curve.VStart)) {
      Say(Name(i) + " must begin above V = 0 and end at a larger volume.");
      return false;
    }
    if (!(curve.E > 0 && curve.E <= 100)) {
      Say(Name(i) + " has an efficiency that is not between 0 and 100%.");
    }
    return true;
  }

  void CheckFalling(std::size_t i) {
    const EfficiencyCurve& curve = set_.curves[i];
    if (LargestSlope(curve, curve.VStart, curve.VEnd) < 0) return;
    Say(Name(i) + " does not fall everywhere: one reuse rate would belong to several volumes.");
  }

  void CheckLimits(std::size_t i) {
    const EfficiencyCurve& curve = set_.curves[i];
    if (curve.VStart < set_.VMin - kSlack || curve.VEnd > set_.VMax + kSlack) {
      Say(Name(i) + " goes beyond the V axis of the chart.");
    }
    const auto [least, most] = std::ranges::minmax(curve.R);
    if (least < set_.RMin - kSlack || most > set_.RMax + kSlack) {
      Say(Name(i) + " goes beyond the R axis of the chart.");
    }
  }

  void CheckRunoff(std::size_t i) {
    if (!meanRunoff_) return;
    const EfficiencyCurve& curve = set_.curves[i];
    const double needed = static_cast<double>(curve.E) / 100 * *meanRunoff_;
    const auto low = std::ranges::min_element(curve.R);
    if (*low > needed) return;
    const auto place = static_cast<std::size_t>(low - curve.R.begin());
    Say(Name(i) + " asks for " + FixedText(*low, 4) + " in/day" + At(curve.V[place]) +
        ", but its efficiency needs more than " + FixedText(needed, 4) +
        " in/day of this rainfall.");
  }

  void CheckNeighbours(std::size_t i) {
    const EfficiencyCurve& lower = set_.curves[i - 1];
    const EfficiencyCurve& upper = set_.curves[i];
    if (!(upper.E > lower.E)) {
      return Say(Name(i) + " does not have a higher efficiency than the curve before it.");
    }
    const double first = std::min(lower.VStart, upper.VStart);
    const double last = std::min(lower.VEnd, upper.VEnd);
    if (!(first > 0 && last > first)) return;
    double least = std::numeric_limits<double>::infinity();
    double leastV = first;
    for (int k = 0; k < kPoints; ++k) {
      const double V = first + (last - first) * k / (kPoints - 1);
      const double distance = CurveR(V, upper) - CurveR(V, lower);
      if (distance >= least) continue;
      least = distance;
      leastV = V;
    }
    if (least >= kLeastGapShare * (set_.RMax - set_.RMin)) return;
    Say(Name(i) + (least <= 0 ? " crosses" : " comes too close to") + " the curve before it" +
        At(leastV) + " (distance " + FixedText(least, 4) + " in/day).");
  }

  void CheckLabel(const CurveLabel& label) {
    if (label.V >= set_.VMin && label.V <= set_.VMax && label.R >= set_.RMin &&
        label.R <= set_.RMax) {
      return;
    }
    Say("The label \"" + Quotable(label.Text) + "\" lies outside the chart.");
  }

  const CurveSet& set_;
  std::optional<double> meanRunoff_;
  std::vector<std::string> sentences_;
};

}  // namespace

std::vector<std::string> CheckCurves(const CurveSet& set, std::optional<double> meanRunoff) {
  return Checker(set, meanRunoff).Run();
}

}  // namespace orvik
