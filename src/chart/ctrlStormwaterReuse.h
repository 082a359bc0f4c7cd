// The design chart control: it owns the curves of one climate station, the chart's geometry and the
// hotspot (the design point), and finds the third of R, V and E from the other two.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Boolean16.h"
#include "chart/PlotGeometry.h"
#include "engine/CurveSet.h"
#include "platform/Desktop.h"

namespace orvik {

// R: normalized reuse rate, inches per day on the EIA. V: normalized storage volume, inches on the
// EIA. E: efficiency, percent.
//
// Operations that can fail answer False and leave the reason in ErrMsg and the number of the help
// topic in HelpTopicIndex; only loading shows messages itself. Numeric faults of unusable curve
// files (curves that meet, samples beyond 16-bit pixels) are thrown as NumericError.
class ctrlStormwaterReuse {
 public:
  // `defaultDataFolder` holds the folder "KAV Data" where DesignDataDirectory names no other; it
  // ends with a path separator.
  ctrlStormwaterReuse(Desktop& desktop, std::string defaultDataFolder);

  // --- Climate station and curves ---

  // Loads the curves of a station (1...25; SubscriptError otherwise), or clears them (0). Shows a
  // message where the folder or the file is missing; IsLoaded tells the result.
  void SetCurveData(std::int16_t StationIndex);

  // The folder of the curve files, with a path separator at its end; empty means the default.
  const std::string& DesignDataDirectory() const { return designDataDirectory_; }
  void DesignDataDirectory(std::string folder) { designDataDirectory_ = std::move(folder); }

  bool IsLoaded() const { return isLoaded_; }
  std::int16_t StationIndex() const { return stationIndex_; }
  const std::string& StationName() const { return stationName_; }

  // The loaded curves. Not to be read while IsLoaded is false.
  const CurveSet& Curves() const { return curves_; }

  // The limits of the loaded file: V on X, R on Y. No value while nothing is loaded.
  std::optional<double> MinX() const;
  std::optional<double> MaxX() const;
  std::optional<double> MinY() const;
  std::optional<double> MaxY() const;

  // Marks the curves as not loaded, empties ErrMsg and HelpTopicIndex, hides the hotspot.
  void Clear();

  // --- Geometry ---

  // Lays the chart out in a control of this many pixels and places a visible hotspot again from its
  // V and R.
  void Resize(int width, int height);

  const FrameLayout& Layout() const { return layout_; }
  const PlotGeometry& Geometry() const { return geometry_; }

  // --- Solving ---

  // Each places the hotspot from two known quantities, given as text (numeric prefix, else 0), and
  // writes the third to the last argument, which is emptied first.
  bool SetHotspotUsing_RV(std::string_view R, std::string_view V, std::string& E);
  bool SetHotspotUsing_ER(std::string_view E, std::string_view R, std::string& V);
  bool SetHotspotUsing_EV(std::string_view E, std::string_view V, std::string& R);

  const std::string& ErrMsg() const { return errMsg_; }
  std::int16_t HelpTopicIndex() const { return helpTopicIndex_; }

  // --- Hotspot ---

  Boolean16 HotSpotVisibile() const { return ToBoolean16(hotspotVisible_); }

  // The hotspot's values in single precision; 0 and False while it is hidden (E: also while it is
  // undefined there).
  bool GetR(float& R) const;
  bool GetV(float& V) const;
  bool GetE(float& E) const;

  // The hotspot in double precision, as it was solved; the last ones while it is hidden.
  double HotspotV() const { return hotspotV_; }
  double HotspotR() const { return hotspotR_; }
  double HotspotE() const { return E_; }

  // The hotspot's pixel.
  std::int16_t HotspotX() const { return hotspotX_; }
  std::int16_t HotspotY() const { return hotspotY_; }

  // The curve through the hotspot's E; nothing where E is undefined.
  const std::optional<EfficiencyCurve>& HighlightCurve() const { return highlightCurve_; }

 private:
  bool LoadCurves(const std::string& folder);
  bool LayOutNewCurves();
  void LayOut();

  bool Succeed();
  bool Fail(std::string message, std::int16_t helpTopic);
  bool FailHidden(std::string message, std::int16_t helpTopic);
  bool CheckV(double V);
  bool CheckR(double R);
  bool CheckE(double E);
  bool ExtractCurveFor(std::string_view text, double E, EfficiencyCurve& curve);
  void PlaceHotspot(double V, double R);
  void ShowSolution(double V, double R, double E, EfficiencyCurve curve);
  bool LocateHotspot();
  bool LocateBetween(const EfficiencyCurve& A, const EfficiencyCurve& B);

  Desktop& desktop_;
  std::string defaultDataFolder_;
  std::string designDataDirectory_;

  bool isLoaded_ = false;
  std::int16_t stationIndex_ = 0;  // 0: none
  std::string stationName_;
  CurveSet curves_;

  int width_ = 960;  // pixels; the size without a window
  int height_ = 640;
  LayoutHeights layoutHeights_;
  FrameLayout layout_;
  PlotGeometry geometry_;

  std::string errMsg_;
  std::int16_t helpTopicIndex_ = 0;

  bool hotspotVisible_ = false;
  double hotspotV_ = 0;  // the master copy of the position; the pixel follows from it
  double hotspotR_ = 0;
  std::int16_t hotspotX_ = 0;
  std::int16_t hotspotY_ = 0;
  bool isEDefined_ = false;
  double E_ = 0;  // the last solved efficiency
  std::optional<EfficiencyCurve> highlightCurve_;
};

}  // namespace orvik
