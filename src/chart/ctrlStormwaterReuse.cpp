#include "chart/ctrlStormwaterReuse.h"

#include <utility>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "base/Rounding.h"
#include "base/RuntimeErrors.h"
#include "base/Text.h"
#include "engine/ClimateStations.h"
#include "engine/CurveFile.h"
#include "engine/CurvePolygon.h"
#include "engine/CurveQueries.h"

namespace orvik {
namespace {

constexpr std::int16_t kNoHelp = 0;
constexpr std::int16_t kRangeHelp = 1;  // the help topic on ranges and the chart's limits

constexpr double kSolveToleranceR = 1e-5;  // in/day
constexpr double kSolveToleranceV = 5e-6;  // inches

}  // namespace

ctrlStormwaterReuse::ctrlStormwaterReuse(Desktop& desktop, std::string defaultDataFolder)
    : desktop_(desktop), defaultDataFolder_(std::move(defaultDataFolder)) {}

// --- Climate station and curves ---

std::string ctrlStormwaterReuse::CurveFolder() const {
  return designDataDirectory_.empty() ? defaultDataFolder_ + "KAV Data" + kPathSeparator
                                      : designDataDirectory_;
}

void ctrlStormwaterReuse::SetCurveData(std::int16_t StationIndex) {
  if (StationIndex == 0) {
    Clear();
    return;
  }
  isLoaded_ = false;
  beforeDrag_.reset();
  Refresh();
  stationName_ = ClimateStationName(StationIndex);
  stationIndex_ = StationIndex;
  const std::string folder = CurveFolder();
  if (!FolderExists(folder)) {
    desktop_.ShowError("Can't find data path:\r\n" + folder);
    return;
  }
  isLoaded_ = LoadCurves(folder);
  if (isLoaded_) {
    ForgetE();  // it was that of the curves before
    LayOut();
  } else {
    stationIndex_ = 0;
    stationName_.clear();
  }
}

bool ctrlStormwaterReuse::LoadCurves(const std::string& folder) {
  const std::string file = folder + std::string(Trim(stationName_)) + ".crv";
  if (!FileExists(file)) {
    desktop_.ShowError("Can't find data for " + stationName_);
    return false;
  }
  clsIOStream stream;
  if (!stream.OpenFile(file, enumIOStreamMode::AsciiFileInput)) return false;
  return ReadCurveFile(stream, curves_);
}

std::optional<double> ctrlStormwaterReuse::MinX() const {
  return isLoaded_ ? std::optional(curves_.VMin) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MaxX() const {
  return isLoaded_ ? std::optional(curves_.VMax) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MinY() const {
  return isLoaded_ ? std::optional(curves_.RMin) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MaxY() const {
  return isLoaded_ ? std::optional(curves_.RMax) : std::nullopt;
}

void ctrlStormwaterReuse::Clear() {
  isLoaded_ = false;
  beforeDrag_.reset();
  errMsg_.clear();
  helpTopicIndex_ = kNoHelp;
  hotspotVisible_ = false;
  Refresh();
}

// --- Geometry ---

void ctrlStormwaterReuse::Resize(int width, int height) {
  width_ = width;
  height_ = height;
  Refresh();
  if (isLoaded_) LayOut();
}

clsPlotWindow ctrlStormwaterReuse::Window() const {
  return {curves_.VMin, curves_.VMax, curves_.RMin, curves_.RMax};
}

void ctrlStormwaterReuse::LayOut() {
  regions_.assign(curves_.Curves.size(), std::nullopt);
  const clsPlotWindow window = Window();
  layout_ = LayoutFrame(width_, height_, window, layoutHeights_);
  geometry_ = PlotGeometry(window, layout_.Frame);
  if (hotspotVisible_) PlaceWithinPixels(hotspot_.V(), hotspot_.R());
}

void ctrlStormwaterReuse::PlaceWithinPixels(double V, double R) {
  try {
    hotspot_.PlaceAt(V, R, geometry_);
  } catch (const OverflowError&) {
    hotspotVisible_ = false;  // on these axes it lies beyond the 16-bit pixels
  }
}

// --- Outcomes and range checks ---

bool ctrlStormwaterReuse::Succeed() {
  errMsg_ = "Success";
  helpTopicIndex_ = kNoHelp;
  return true;
}

bool ctrlStormwaterReuse::Fail(std::string message, std::int16_t helpTopic) {
  errMsg_ = std::move(message);
  helpTopicIndex_ = helpTopic;
  return false;
}

bool ctrlStormwaterReuse::FailHidden(std::string message, std::int16_t helpTopic) {
  hotspotVisible_ = false;
  return Fail(std::move(message), helpTopic);
}

bool ctrlStormwaterReuse::CheckV(double V) {
  if (V < curves_.VMin) {
    return FailHidden("Normalized storage volume is less than " + ConvertToString(curves_.VMin),
                      kRangeHelp);
  }
  if (V > curves_.VMax) {
    return FailHidden("Normalized storage volume is greater than " + ConvertToString(curves_.VMax),
                      kRangeHelp);
  }
  return true;
}

bool ctrlStormwaterReuse::CheckR(double R) {
  if (R < curves_.RMin) {
    return FailHidden("Normalized reuse rate is less than " + ConvertToString(curves_.RMin),
                      kRangeHelp);
  }
  if (R > curves_.RMax) {
    return FailHidden("Normalized reuse rate is greater than " + ConvertToString(curves_.RMax),
                      kRangeHelp);
  }
  return true;
}

bool ctrlStormwaterReuse::CheckE(double E) {
  const float single = ToSingle(E);
  const float lowest = curves_.Curves.front().E;
  const float highest = curves_.Curves.back().E;
  if (single < lowest) {
    return FailHidden("Design efficiency is less than " + ConvertToString(lowest) + "%.",
                      kRangeHelp);
  }
  if (single > highest) {
    return FailHidden("Design efficiency is greater than " + ConvertToString(highest) + "%.",
                      kRangeHelp);
  }
  return true;
}

// --- Solving ---

bool ctrlStormwaterReuse::SetHotspotUsing_RV(std::string_view R, std::string_view V,
                                             std::string& E) {
  Refresh();
  const double rate = ParseNumber(R);
  const double volume = ParseNumber(V);
  E.clear();
  const std::string outOfRange =
      "The specified point is out of range of the design efficiency curves.";
  if (!isLoaded_) return FailHidden(outOfRange, kRangeHelp);
  if (!CheckV(volume) || !CheckR(rate)) return false;
  hotspotVisible_ = true;
  hotspot_.PlaceAt(volume, rate, geometry_);
  if (!LocateHotspot()) return Fail(outOfRange, kRangeHelp);
  E = ConvertToString(ToSingle(E_));
  return true;
}

bool ctrlStormwaterReuse::SetHotspotUsing_ER(std::string_view E, std::string_view R,
                                             std::string& V) {
  Refresh();
  const double efficiency = ParseNumber(E);
  const double rate = ParseNumber(R);
  const std::string efficiencyText(E);
  V.clear();
  EfficiencyCurve curve;
  if (isLoaded_ && (!CheckE(efficiency) || !CheckR(rate))) return false;
  if (!ExtractCurveFor(efficiencyText, efficiency, curve)) return false;
  const auto volume = FindVOnCurve(rate, curve, kSolveToleranceR, kSolveToleranceV);
  if (!volume) {
    return FailHidden(
        "The normalized reuse rate is out of range of the specified efficiency curve.", kRangeHelp);
  }
  ShowSolution(*volume, rate, efficiency, std::move(curve));
  V = ConvertToString(ToSingle(*volume));
  return true;
}

bool ctrlStormwaterReuse::SetHotspotUsing_EV(std::string_view E, std::string_view V,
                                             std::string& R) {
  Refresh();
  const double efficiency = ParseNumber(E);
  const double volume = ParseNumber(V);
  const std::string efficiencyText(E);
  R.clear();
  EfficiencyCurve curve;
  if (isLoaded_ && (!CheckE(efficiency) || !CheckV(volume))) return false;
  if (!ExtractCurveFor(efficiencyText, efficiency, curve)) return false;
  if (volume < curve.VStart) {
    return FailHidden(
        "The normalized storage volume is less than the minimum value for the specified efficiency "
        "curve.",
        kRangeHelp);
  }
  if (volume > curve.VEnd) {
    return FailHidden(
        "The normalized storage volume is greater than the maximum value for the specified "
        "efficiency curve.",
        kRangeHelp);
  }
  const double rate = CurveR(volume, curve);
  ShowSolution(volume, rate, efficiency, std::move(curve));
  R = ConvertToString(ToSingle(rate));
  return true;
}

// The help topic stays 0 here on purpose: there is no page about a curve that cannot be made.
bool ctrlStormwaterReuse::ExtractCurveFor(std::string_view text, double E, EfficiencyCurve& curve) {
  auto extracted = isLoaded_ ? ExtractCurve(curves_, E) : std::nullopt;
  if (!extracted) {
    return FailHidden("Unable to extract curve data for E=" + std::string(text), kNoHelp);
  }
  curve = std::move(*extracted);
  return true;
}

void ctrlStormwaterReuse::ShowSolution(double V, double R, double E, EfficiencyCurve curve) {
  hotspot_.PlaceAt(V, R, geometry_);
  hotspotVisible_ = true;
  E_ = E;
  isEDefined_ = true;
  highlightCurve_ = std::move(curve);
  Succeed();
}

bool ctrlStormwaterReuse::LocateHotspot() {
  ForgetE();
  for (std::size_t i = 0; i + 1 < curves_.Curves.size(); ++i) {
    if (LocateBetween(i)) return Succeed();
  }
  return FailLocation();
}

bool ctrlStormwaterReuse::FailLocation() {
  return Fail("Out of range", kRangeHelp);
}

// Between curve i and the next.
bool ctrlStormwaterReuse::LocateBetween(std::size_t i) {
  if (!IsPointInsidePolygon(hotspot_.X(), hotspot_.Y(), Region(i))) return false;
  const EfficiencyCurve& A = curves_.Curves[i];
  const EfficiencyCurve& B = curves_.Curves[i + 1];
  const auto found = FindEBetweenCurves(hotspot_.V(), hotspot_.R(), A, B);
  if (!found) return false;
  E_ = found->E;
  isEDefined_ = true;
  highlightCurve_ = InterpolateCurve(A, B, found->t, ToSingle(found->E));
  SampleCurve(*highlightCurve_);
  return true;
}

const FramePolygon& ctrlStormwaterReuse::Region(std::size_t i) {
  std::optional<FramePolygon>& region = regions_[i];
  if (!region) {
    region = FindPolygonInPlotCoordinates(curves_.Curves[i], curves_.Curves[i + 1], geometry_);
  }
  return *region;
}

void ctrlStormwaterReuse::ForgetE() {
  isEDefined_ = false;
  highlightCurve_.reset();
}

// --- Hotspot ---

bool ctrlStormwaterReuse::GetR(float& R) const {
  R = hotspotVisible_ ? ToSingle(hotspot_.R()) : 0;
  return hotspotVisible_;
}

bool ctrlStormwaterReuse::GetV(float& V) const {
  V = hotspotVisible_ ? ToSingle(hotspot_.V()) : 0;
  return hotspotVisible_;
}

bool ctrlStormwaterReuse::GetE(float& E) const {
  const bool defined = hotspotVisible_ && isEDefined_;
  E = defined ? ToSingle(E_) : 0;
  return defined;
}

}  // namespace orvik
