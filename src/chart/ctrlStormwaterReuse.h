// The design chart control: it owns the curves of one climate station, the chart's geometry and the
// hotspot (the design point), and finds the third of R, V and E from the other two.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Boolean16.h"
#include "chart/ChartScene.h"
#include "chart/ChartText.h"
#include "chart/Hotspot.h"
#include "chart/PlotGeometry.h"
#include "engine/CurvePolygon.h"
#include "engine/CurveSet.h"
#include "platform/Desktop.h"
#include "platform/Host.h"
#include "platform/Printer.h"

namespace orvik {

// R: normalized reuse rate, inches per day on the EIA. V: normalized storage volume, inches on the
// EIA. E: efficiency, percent.
//
// Operations that can fail answer False and leave the reason in ErrMsg and the number of the help
// topic in HelpTopicIndex; only loading shows messages itself. Numeric faults of unusable curve
// files (curves that meet, samples beyond 16-bit pixels) are thrown as NumericError, except by the
// answers to mouse and keys: there the efficiency is undefined.
class ctrlStormwaterReuse {
 public:
  // `defaultDataFolder` holds the folder "KAV Data" where DesignDataDirectory names no other; it
  // ends with a path separator.
  ctrlStormwaterReuse(Desktop& desktop, std::string defaultDataFolder);
  ctrlStormwaterReuse(const ctrlStormwaterReuse&) = delete;
  ctrlStormwaterReuse& operator=(const ctrlStormwaterReuse&) = delete;
  ~ctrlStormwaterReuse() = default;

  // The window that shows the control, null for none. It outlives the control or is taken away
  // before it goes.
  void AttachHost(Host* host) { host_ = host; }

  // --- Climate station and curves ---

  // Loads the curves of a station (1...25; SubscriptError otherwise), or clears them (0). Shows a
  // message where the folder or the file is missing; IsLoaded tells the result.
  void SetCurveData(std::int16_t StationIndex);

  // The folder of the curve files, with a path separator at its end; empty means the default.
  const std::string& DesignDataDirectory() const { return designDataDirectory_; }
  void DesignDataDirectory(std::string folder) { designDataDirectory_ = std::move(folder); }

  // The folder that curve files are read from: that one, or the default.
  std::string CurveFolder() const;

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

  Size ControlSize() const { return {width_, height_}; }
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
  void HideHotSpot();

  // The hotspot's values in single precision; 0 and False while it is hidden (E: also while it is
  // undefined there).
  bool GetR(float& R) const;
  bool GetV(float& V) const;
  bool GetE(float& E) const;

  // The hotspot in double precision, as it was solved; the last ones while it is hidden.
  double HotspotV() const { return hotspot_.V(); }
  double HotspotR() const { return hotspot_.R(); }
  double HotspotE() const { return E_; }

  // The hotspot's pixel.
  std::int16_t HotspotX() const { return hotspot_.X(); }
  std::int16_t HotspotY() const { return hotspot_.Y(); }

  // The curve through the hotspot's E; nothing where E is undefined.
  const std::optional<EfficiencyCurve>& HighlightCurve() const { return highlightCurve_; }

  // --- Painting ---

  // Paints the whole control: paper, background, and below the border, while curves are loaded and
  // UserMode is True, the chart with its hotspot. A highlight is not painted again, so a window
  // always paints the whole control. Nothing else of the control changes.
  void Paint(Surface& surface);

  // Has the whole control painted again soon.
  void Refresh();

  // True while the control works for a user; False where a host only lays it out, which shows no
  // chart. True at first.
  Boolean16 UserMode() const { return ToBoolean16(userMode_); }
  void UserMode(Boolean16 on);

  // Lies under the chart while InteractiveMode is False, from the upper left corner on, unscaled.
  void BackgroundPicture(std::optional<Picture> picture);

  // --- Printing ---

  // Prints the chart into the rectangle (the printer's units), laid out afresh: title, frame, grid
  // and ticks, axis texts, labels, curves, their ends, and a visible hotspot. Nothing where no
  // curves are loaded or the rectangle has no place for them. Nothing of the control changes.
  void PrintDesignChart(Printer& printer, std::int16_t Left, std::int16_t Top, std::int16_t Right,
                        std::int16_t Bottom) const;

  // The measures of the chart in such a rectangle. Requires loaded curves.
  clsPlotMetrics PrintMetrics(std::int16_t Left, std::int16_t Top, std::int16_t Right,
                              std::int16_t Bottom) const;

  // The height that uses a page's width best, in the units of `width`. Requires loaded curves.
  double PrintedHeight(double width) const;

  // --- Mouse and keys ---

  // True: the mouse places the hotspot.
  Boolean16 InteractiveMode() const { return ToBoolean16(interactive_); }
  void InteractiveMode(Boolean16 on);

  // True during a drag.
  Boolean16 MouseCaptured() const { return ToBoolean16(mouseCaptured_); }

  // What the window's messages say. Button 1 is the left one; x and y are pixels of the control,
  // and any value is allowed. Arrow keys (37...40) move a visible hotspot by a pixel; the Space bar
  // (32) shows the curve through it while it is held; Esc (27) ends a drag and puts everything back
  // as it was before, which is a change too.
  void MouseDown(std::int16_t button, double x, double y);
  void MouseMove(double x, double y);
  void MouseUp();
  void CaptureLost();  // the system took the mouse away: ends a drag, once
  void KeyDown(std::int16_t keyCode);
  void KeyUp(std::int16_t keyCode);
  bool WantsKey(std::int16_t keyCode) const;  // whether KeyDown would heed it now
  void GotFocus() { hasFocus_ = true; }
  void LostFocus();
  Boolean16 HasFocus() const { return ToBoolean16(hasFocus_); }

  std::function<void()> OnChange;         // the user placed or moved the hotspot; E is evaluated
  std::function<void()> OnMousePressed;   // a drag has begun; right after its first OnChange
  std::function<void()> OnMouseReleased;  // the drag has ended

 private:
  bool LoadCurves(const std::string& folder);
  void LayOut();
  void PlaceWithinPixels(double V, double R);

  bool Succeed();
  bool Fail(std::string message, std::int16_t helpTopic);
  bool FailHidden(std::string message, std::int16_t helpTopic);
  bool CheckV(double V);
  bool CheckR(double R);
  bool CheckE(double E);
  bool ExtractCurveFor(std::string_view text, double E, EfficiencyCurve& curve);
  void ShowSolution(double V, double R, double E, EfficiencyCurve curve);
  bool LocateHotspot();
  bool LocateBetween(std::size_t i);
  const FramePolygon& Region(std::size_t i);
  bool FailLocation();
  void ForgetE();

  // What a cancelled drag puts back.
  struct DesignPoint {
    bool hotspotVisible;
    double V;
    double R;
    bool isEDefined;
    double E;
    std::optional<EfficiencyCurve> highlightCurve;
    std::string errMsg;
    std::int16_t helpTopicIndex;
  };

  bool IsHotspotShown() const { return isLoaded_ && hotspotVisible_; }
  bool TakesPoint(double x, double y) const;
  void PlaceByMouse(double x, double y);
  void CancelDrag();
  void PutBack(DesignPoint point);
  void StepHotspot(int dX, int dY);
  void EvaluateE();
  void ShowHighlight();
  void RemoveHighlight();
  bool DrawHighlight();
  void ToggleHotspot();
  Surface* TransientSurface() const;

  void PaintBackground(Surface& surface) const;
  void PaintChart(Surface& surface) const;
  ChartScene Scene() const;
  void DrawTitleBlock_Screen(Surface& surface, TextRoom& room) const;
  void DrawPlotFrame_Screen(Surface& surface) const;
  void DrawCurves_Screen(Surface& surface) const;
  void DrawCurveEnds_Screen(Surface& surface) const;
  void DrawLabels_Screen(Surface& surface, const TextRoom& room) const;
  void DrawHotspot_Screen(Surface& surface) const;
  void DrawBorder(Surface& surface) const;

  clsPlotWindow Window() const;
  void PrintChart(Printer& printer, const clsPlotMetrics& metrics) const;
  void PrintHotspot(Printer& printer, const clsRectangle_Integer& target, const ChartScene& scene,
                    std::span<const Area> captions) const;

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
  // The region between curve i and the next, made when it is first asked for in a layout.
  std::vector<std::optional<FramePolygon>> regions_;

  std::string errMsg_;
  std::int16_t helpTopicIndex_ = 0;

  bool hotspotVisible_ = false;
  Hotspot hotspot_;
  bool isEDefined_ = false;
  double E_ = 0;  // the last solved efficiency
  std::optional<EfficiencyCurve> highlightCurve_;

  Host* host_ = nullptr;
  bool userMode_ = true;
  std::optional<Picture> backgroundPicture_;
  bool interactive_ = false;
  bool mouseCaptured_ = false;
  std::optional<DesignPoint> beforeDrag_;  // none where the curves are others by now
  bool highlightShown_ = false;            // the highlight curve is on the screen
  bool hasFocus_ = false;
};

}  // namespace orvik
