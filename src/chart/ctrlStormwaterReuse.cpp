#include "chart/ctrlStormwaterReuse.h"

#include <utility>

#include "base/NumberText.h"
#include "chart/ChartColours.h"
#include "chart/ChartPainting.h"
#include "chart/ChartPrinting.h"
#include "chart/ChartScene.h"
#include "chart/HotspotDrawing.h"
#include "design/FileHints.h"
#include "engine/ClimateStations.h"
#include "engine/CurveLoading.h"
#include "platform/Printer.h"

namespace orvik {

ctrlStormwaterReuse::ctrlStormwaterReuse(std::string defaultDataFolder)
    : defaultDataFolder_(std::move(defaultDataFolder)) {}

// --- Climate station and curves ---

std::string ctrlStormwaterReuse::CurveFolder() const {
  return designDataDirectory_.empty() ? CurveFolderBelow(defaultDataFolder_) : designDataDirectory_;
}

LoadOutcome ctrlStormwaterReuse::SetCurveData(std::int16_t StationIndex) {
  if (StationIndex == 0) {
    Clear();
    return LoadOutcome::Cleared;
  }
  Unload();
  stationName_ = ClimateStationName(StationIndex);
  stationIndex_ = StationIndex;
  LoadedCurves loaded = LoadStationCurves(CurveFolder(), StationIndex);
  loadHints_ = HintsOf(loaded);
  if (loaded.outcome == LoadOutcome::Loaded) {
    ForgetE(state_.point);  // it was that of the curves before
    LayOut(std::move(loaded.curves));
  } else if (loaded.outcome != LoadOutcome::FolderMissing) {
    stationIndex_ = 0;
    stationName_.clear();
  }
  return loaded.outcome;
}

void ctrlStormwaterReuse::Unload() {
  state_.curves.reset();
  input_.ForgetDrag();
  Refresh();
}

std::optional<double> ctrlStormwaterReuse::MinX() const {
  return IsLoaded() ? std::optional(Curves().VMin) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MaxX() const {
  return IsLoaded() ? std::optional(Curves().VMax) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MinY() const {
  return IsLoaded() ? std::optional(Curves().RMin) : std::nullopt;
}

std::optional<double> ctrlStormwaterReuse::MaxY() const {
  return IsLoaded() ? std::optional(Curves().RMax) : std::nullopt;
}

void ctrlStormwaterReuse::Clear() {
  loadHints_.clear();
  state_.point.message = {};
  state_.point.isShown = false;
  Unload();
}

// --- Geometry ---

void ctrlStormwaterReuse::Resize(int width, int height) {
  size_ = {width, height};
  Refresh();
  if (IsLoaded()) LayOut(state_.curves->Shared());
}

void ctrlStormwaterReuse::LayOut(std::shared_ptr<const CurveSet> curves) {
  const clsPlotWindow window = PlotWindowOf(*curves);
  const FrameLayout layout = LayoutFrame(size_.width, size_.height, window, LayoutHeights());
  state_.curves.emplace(std::move(curves), PlotGeometry(window, layout.frame));
  layout_ = layout;
  ReplaceInFrame(state_);
}

const PlotGeometry& ctrlStormwaterReuse::Geometry() const {
  static const PlotGeometry kNone;
  return IsLoaded() ? state_.curves->Geometry() : kNone;
}

// --- Solving ---

bool ctrlStormwaterReuse::SetHotspotUsing_RV(std::string_view R, std::string_view V,
                                             std::string& E) {
  Refresh();
  const double rate = ParseNumber(R);
  const double volume = ParseNumber(V);
  E.clear();
  const auto found = PlaceUsingRV(state_.point, InFrame(), rate, volume);
  E = found.value_or("");
  return found.has_value();
}

// The texts may be the place of the answer.
bool ctrlStormwaterReuse::SetHotspotUsing_ER(std::string_view E, std::string_view R,
                                             std::string& V) {
  Refresh();
  const std::string efficiency(E);
  const double rate = ParseNumber(R);
  V.clear();
  const auto found = PlaceUsingER(state_.point, InFrame(), efficiency, rate);
  V = found.value_or("");
  return found.has_value();
}

bool ctrlStormwaterReuse::SetHotspotUsing_EV(std::string_view E, std::string_view V,
                                             std::string& R) {
  Refresh();
  const std::string efficiency(E);
  const double volume = ParseNumber(V);
  R.clear();
  const auto found = PlaceUsingEV(state_.point, InFrame(), efficiency, volume);
  R = found.value_or("");
  return found.has_value();
}

// --- Hotspot ---

void ctrlStormwaterReuse::Point(DesignPoint point) {
  const DesignPoint& old = state_.point;
  const bool looksTheSame =
      old.isShown == point.isShown && (!old.isShown || old.pixel == point.pixel);
  state_.point = std::move(point);
  if (!looksTheSame) Refresh();
}

void ctrlStormwaterReuse::HideHotSpot() {
  input_.ToggleHotspot();
  state_.point.isShown = false;
}

bool ctrlStormwaterReuse::GetR(float& R) const {
  R = SingleR(state_.point);
  return state_.point.isShown;
}

bool ctrlStormwaterReuse::GetV(float& V) const {
  V = SingleV(state_.point);
  return state_.point.isShown;
}

bool ctrlStormwaterReuse::GetE(float& E) const {
  E = SingleE(state_.point);
  return state_.point.HasE();
}

// --- Painting ---

void ctrlStormwaterReuse::Paint(Surface& surface) const {
  surface.FillArea({0, 0, size_.width, size_.height}, kPaper);
  if (!input_.InteractiveMode() && backgroundPicture_) {
    surface.CopyPicture(*backgroundPicture_, {0, 0, size_.width, size_.height});
  }
  if (userMode_ && IsLoaded()) {
    const ChartScene scene = Scene();
    PaintDesignChart(surface, scene, size_);
    if (state_.point.isShown) {
      DrawHotspot(surface, state_.point.pixel, layout_.frame, kHotspotPenWidth);
    }
  }
  PaintBorder(surface, size_);
}

void ctrlStormwaterReuse::PaintScreen(Surface& surface) {
  marks_.PaintedOver();
  Paint(surface);
}

ChartScene ctrlStormwaterReuse::Scene() const {
  return {.curves = Curves(),
          .station = stationName_,
          .geometry = Geometry(),
          .layout = layout_,
          .heights = {}};
}

void ctrlStormwaterReuse::UserMode(bool on) {
  userMode_ = on;
  Refresh();
}

void ctrlStormwaterReuse::BackgroundPicture(std::optional<Picture> picture) {
  backgroundPicture_ = std::move(picture);
  Refresh();
}

// --- Printing ---

void ctrlStormwaterReuse::PrintDesignChart(Printer& printer, std::int16_t Left, std::int16_t Top,
                                           std::int16_t Right, std::int16_t Bottom) const {
  if (!IsLoaded()) return;
  orvik::PrintDesignChart(printer, {Curves(), stationName_, state_.point},
                          {Left, Right, Top, Bottom});
}

// --- Mouse and keys ---

void ctrlStormwaterReuse::InteractiveMode(bool on) {
  if (on == input_.InteractiveMode()) return;
  input_.InteractiveMode(on);
  Refresh();  // the background differs
}

}  // namespace orvik
