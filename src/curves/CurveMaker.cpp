#include "curves/CurveMaker.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/FixedText.h"
#include "base/NumberText.h"
#include "curves/ChartAxes.h"
#include "curves/CurveCheck.h"
#include "curves/CurveFit.h"
#include "curves/CurveLabels.h"
#include "curves/EfficiencyTable.h"
#include "engine/CurveFileWriter.h"
#include "pond/PondDays.h"

namespace orvik {
namespace {

constexpr int kFirstE = 50;  // percent
constexpr int kLastE = 95;
constexpr int kStepE = 5;

constexpr double kStepVStart = 0.05;  // inches
constexpr double kStepSlack = 1e-9;   // of a step: 0.15 / 0.05 is a hair less than 3
constexpr double kShortestRange = 1;  // inches that a curve covers at least
constexpr std::size_t kVolumes = 48;  // of the table
constexpr std::size_t kRates = 60;
constexpr std::size_t kFittedVolumes = 32;

// The fit knows the error only at some volumes, and takes it as linear between three rates. So the
// bounds that it is given are tried from a little above to a little below what is accepted.
constexpr double kBounds[] = {1.04, 0.98, 0.92};

// A curve is judged at steps of the volume. Between two of them it may be a little worse: the
// margin keeps it within the promised limits there too.
constexpr double kAcceptedShare = 0.985;
constexpr double kAcceptedError = kAcceptedShare * kMostError;
constexpr double kAcceptedMeanError = kAcceptedShare * kMostMeanError;

// The table's rates. No pond reaches E at a rate below E percent of the mean runoff, so the table
// begins at nine tenths of that rate for the E one step below the lowest curve. It ends beyond the
// axis, to show by how much a curve misses the chart.
constexpr double kLeastRatePerPoint = 0.009;  // of the mean runoff, for each percent of E
constexpr double kMostRateShare = 1.5;        // of the R axis

// What rounding the coefficients to six decimals can add to R: half a millionth times 1 + L + L^2 +
// L^3, which is 14 at V = 7.
constexpr double kRoundingR = 1e-5;

// At the end of a curve R is above E x mean runoff by this factor, so that rounding cannot take it
// below.
constexpr double kAboveRunoff = 1.001;

// The least gap between two curves, as a share of the mean runoff times the step of E.
constexpr double kGapShare = 0.5;

// A curve that needs less than this share of the R axis has room there: then it is the accuracy
// that cannot be reached.
constexpr double kRoomyShare = 0.9;

constexpr int kRateDecimals = 3;             // of the rates in sentences
constexpr double kHalfLastDecimal = 0.0005;  // of these

EfficiencyCurve AsWritten(EfficiencyCurve curve, int E) {
  curve.E = static_cast<float>(E);
  curve.A = RoundCoefficient(curve.A);
  curve.B = RoundCoefficient(curve.B);
  curve.C = RoundCoefficient(curve.C);
  curve.D = RoundCoefficient(curve.D);
  return curve;
}

// The rates that the fit can need. Where the axis ends below them, they still span a factor of two.
std::vector<double> TableRates(const PondDays& days, const ChartAxes& axes) {
  const double most = kMostRateShare * axes.RMax;
  const double least = kLeastRatePerPoint * (kFirstE - kStepE) * days.MeanRunoff();
  return GeometricSteps(std::min(least, most / 2), most, kRates);
}

std::string RateText(double R) {
  return FixedText(R, kRateDecimals);
}

// Makes one curve after the other, from the lowest efficiency to the highest.
class Maker {
 public:
  Maker(const PondDays& days, const ChartAxes& axes)
      : days_(days),
        axes_(axes),
        table_(days, GeometricSteps(kStepVStart, axes.VMax, kVolumes), TableRates(days, axes)) {}

  void Make(int E, MadeCurves& made) const {
    const EfficiencyCurve* lower = made.set.curves.empty() ? nullptr : &made.set.curves.back();
    const std::vector<RateBand> bands = FindBands(E);
    const int last = LastStep();
    for (int step = FirstPromising(E, bands, lower); step <= last; ++step) {
      for (const double bound : kBounds) {
        if (MakeFrom(E, bands, lower, step, bound, made)) return;
      }
    }
    Refuse(E);
  }

 private:
  static int StepOf(double V) { return static_cast<int>(std::floor(V / kStepVStart + kStepSlack)); }
  // The volume of a step, as its decimal text reads back.
  static double VolumeOf(int step) { return std::round(step * kStepVStart * 100) / 100; }

  int LastStep() const { return StepOf(axes_.VMax - kShortestRange); }

  // Adds the curve that starts at this step and is fitted under this bound, if it is accepted.
  bool MakeFrom(int E, const std::vector<RateBand>& bands, const EfficiencyCurve* lower, int step,
                double bound, MadeCurves& made) const {
    const auto fitted = Fit(E, bands, lower, step, bound);
    if (!fitted) return false;
    EfficiencyCurve curve = AsWritten(*fitted, E);
    const CurveError error = JudgeCurve(days_, curve);
    if (!IsAccepted(curve, error)) return false;
    SampleCurve(curve);
    made.set.curves.push_back(std::move(curve));
    made.errors.push_back(error);
    return true;
  }

  bool IsAccepted(const EfficiencyCurve& curve, const CurveError& error) const {
    return error.max <= kAcceptedError && error.mean <= kAcceptedMeanError &&
           CurveR(curve.VStart, curve) <= axes_.RMax &&
           LargestSlope(curve, curve.VStart, curve.VEnd) < 0;
  }

  // The bands of the table's volumes, where its rates reach E.
  std::vector<RateBand> FindBands(int E) const {
    std::vector<RateBand> bands;
    for (std::size_t v = 0; v < table_.V().size(); ++v) {
      const auto target = table_.RateAt(v, E);
      if (!target) continue;
      bands.push_back({table_.V()[v], table_.RateAt(v, E - 1).value_or(0), *target,
                       table_.RateAt(v, E + 1).value_or(table_.MostR())});
    }
    return bands;
  }

  // The band at V. Between two volumes of the table the rates follow a power law closely, so their
  // logarithms are interpolated over ln V. Nothing where the table does not reach E.
  static std::optional<RateBand> BandAt(const std::vector<RateBand>& bands, double V) {
    const auto next = std::ranges::lower_bound(bands, V, {}, &RateBand::V);
    if (next == bands.end() || (next == bands.begin() && next->V > V)) return std::nullopt;
    if (next->V == V) return *next;
    const RateBand& before = *(next - 1);
    const double t = std::log(V / before.V) / std::log(next->V / before.V);
    const auto between = [&](double a, double b) { return a * std::pow(b / a, t); };
    return RateBand{V, between(before.lower, next->lower), between(before.target, next->target),
                    between(before.upper, next->upper)};
  }

  // Bands from V to the end of the axis, the same number for a short range as for a long one.
  std::vector<RateBand> BandsFrom(const std::vector<RateBand>& bands, double V) const {
    std::vector<RateBand> result;
    for (const double volume : GeometricSteps(V, axes_.VMax, kFittedVolumes)) {
      const auto band = BandAt(bands, volume);
      if (!band) return {};
      result.push_back(*band);
    }
    return result;
  }

  std::optional<EfficiencyCurve> Fit(int E, const std::vector<RateBand>& bands,
                                     const EfficiencyCurve* lower, int step, double bound) const {
    const double V = VolumeOf(step);
    const std::vector<RateBand> used = BandsFrom(bands, V);
    if (used.empty()) return std::nullopt;
    const double asymptote = days_.MeanRunoff() / 100;  // in/day for each percent of E
    return FitCurve(used, {.mostError = bound,
                           .VStart = V,
                           .VEnd = axes_.VMax,
                           .mostR = axes_.RMax - kRoundingR,
                           .leastR = asymptote * E * kAboveRunoff,
                           .lower = lower,
                           .gap = kGapShare * kStepE * asymptote});
  }

  // The first start volume from which there is a curve within the widest bound. A later start has
  // fewer requirements, so there is a curve for every later one too, and bisection finds the first.
  int FirstPromising(int E, const std::vector<RateBand>& bands,
                     const EfficiencyCurve* lower) const {
    int low = lower == nullptr ? 1 : StepOf(lower->VStart);
    int high = LastStep();
    while (low < high) {
      const int middle = (low + high) / 2;
      if (Fit(E, bands, lower, middle, kBounds[0])) {
        high = middle;
      } else {
        low = middle + 1;
      }
    }
    return low;
  }

  [[noreturn]] void Refuse(int E) const {
    const std::string limits = "V = " + ConvertToString(axes_.VMax) +
                               " in and R = " + ConvertToString(axes_.RMax) + " in/day";
    const std::string text = "No curve for E = " + std::to_string(E) + "% fits within " + limits;
    const auto needed = table_.RateAt(table_.V().size() - 1, E);
    if (needed && *needed < kRoomyShare * axes_.RMax) {
      throw AxesTooSmall(text + " with the required accuracy.", AxisRemedy::LargerRMaxOrVMax);
    }
    if (!needed) {
      throw AxesTooSmall(text + ": at the largest volume even R = " + RateText(table_.MostR()) +
                             " in/day is too little.",
                         AxisRemedy::LargerRMaxOrVMax);
    }
    const std::string rate =
        ": at the largest volume it needs R = " + RateText(*needed) + " in/day";
    // Compared as printed: a rate that rounds to the end of the axis is not above it.
    if (*needed < axes_.RMax + kHalfLastDecimal) {
      throw AxesTooSmall(text + rate + ", which leaves too little of the V axis.",
                         AxisRemedy::LargerRMaxOrVMax);
    }
    throw AxesTooSmall(text + rate + ".", AxisRemedy::LargerRMax);
  }

  const PondDays& days_;
  ChartAxes axes_;
  EfficiencyTable table_;
};

}  // namespace

MadeCurves MakeCurves(const PondDays& days, const ChartAxes& axes, const std::string& title) {
  MadeCurves made;
  made.set.title = title;
  made.set.VMin = axes.VMin;
  made.set.VMax = axes.VMax;
  made.set.VInterval = axes.VInterval;
  made.set.RMin = axes.RMin;
  made.set.RMax = axes.RMax;
  made.set.RInterval = axes.RInterval;
  const Maker maker(days, axes);
  for (int E = kFirstE; E <= kLastE; E += kStepE) maker.Make(E, made);
  PlaceLabels(made.set);
  const auto broken = CheckCurves(made.set, days.MeanRunoff());
  if (!broken.empty()) throw Refusal("The curves cannot be used. " + broken.front());
  return made;
}

}  // namespace orvik
